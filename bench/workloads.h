/* What programs do with messages, through the public interface: reading the typed core, and a proxy's hop. For C and
 * C++. */
#ifndef WORKLOADS_H
#define WORKLOADS_H

#include <quill/quill.h>

/* The typed core: top Via, From, To, Call-ID, CSeq, Contact, Max-Forwards, top Route. Strings are null where they are
 * absent, in this order; numbers are 0. */
enum {
    CORE_VIA_HOST,
    CORE_VIA_BRANCH,
    CORE_FROM_IRI,
    CORE_FROM_DISPLAY_NAME,
    CORE_FROM_TAG,
    CORE_TO_IRI,
    CORE_TO_DISPLAY_NAME,
    CORE_TO_TAG,
    CORE_CALL_ID,
    CORE_CSEQ_METHOD,
    CORE_CONTACT_IRI,
    CORE_ROUTE_IRI,
    CORE_STRINGS
};
struct core {
    struct coString *strings[CORE_STRINGS];
    int64_t viaPort, viaCount, cseq, maxForwardsLeft, routes;
    struct quillHeaderVia *vias; /* these two stay at hand: a hop changes them; null where they are absent */
    struct quillHeaderMaxForwards *maxForwards;
};

static inline void coreReadVia(struct quillMessage const *msg, struct core *core) {
    struct quillHeaderVia *vias = quillHeaderViaTryDecodeFromMessage(msg);
    struct quillVia *via = vias ? quillHeaderViaTryDecodeViaAt(vias, 0) : NULL;
    if (via) {
        core->strings[CORE_VIA_HOST] = quillViaHost(via);
        core->strings[CORE_VIA_BRANCH] = quillViaBranch(via);
        core->viaPort = quillViaPort(via);
        core->viaCount = quillHeaderViaViasLength(vias);
        quillViaRelease(via);
    }
    core->vias = vias;
}

static inline void coreReadFrom(struct quillMessage const *msg, struct core *core) {
    struct quillHeaderFrom *from = quillHeaderFromTryDecodeFromMessage(msg);
    if (!from) return;
    core->strings[CORE_FROM_IRI] = quillHeaderFromIri(from);
    core->strings[CORE_FROM_DISPLAY_NAME] = quillHeaderFromDisplayName(from);
    core->strings[CORE_FROM_TAG] = quillHeaderFromTag(from);
    quillHeaderFromRelease(from);
}

static inline void coreReadTo(struct quillMessage const *msg, struct core *core) {
    struct quillHeaderTo *to = quillHeaderToTryDecodeFromMessage(msg);
    if (!to) return;
    core->strings[CORE_TO_IRI] = quillHeaderToIri(to);
    core->strings[CORE_TO_DISPLAY_NAME] = quillHeaderToDisplayName(to);
    core->strings[CORE_TO_TAG] = quillHeaderToTag(to);
    quillHeaderToRelease(to);
}

static inline void coreReadCallId(struct quillMessage const *msg, struct core *core) {
    struct quillHeaderCallId *callId = quillHeaderCallIdTryDecodeFromMessage(msg);
    if (!callId) return;
    core->strings[CORE_CALL_ID] = quillHeaderCallIdCallId(callId);
    quillHeaderCallIdRelease(callId);
}

static inline void coreReadCseq(struct quillMessage const *msg, struct core *core) {
    struct quillHeaderCseq *cseq = quillHeaderCseqTryDecodeFromMessage(msg);
    if (!cseq) return;
    core->cseq = quillHeaderCseqCseq(cseq);
    core->strings[CORE_CSEQ_METHOD] = quillHeaderCseqMethod(cseq);
    quillHeaderCseqRelease(cseq);
}

static inline void coreReadContact(struct quillMessage const *msg, struct core *core) {
    struct quillHeaderContact *contacts = quillHeaderContactTryDecodeFromMessage(msg);
    struct quillContact *contact = contacts && quillHeaderContactContactsLength(contacts) > 0
                                       ? quillHeaderContactTryDecodeContactAt(contacts, 0)
                                       : NULL;
    if (contact) {
        core->strings[CORE_CONTACT_IRI] = quillContactIri(contact);
        quillContactRelease(contact);
    }
    if (contacts) quillHeaderContactRelease(contacts);
}

static inline void coreReadMaxForwards(struct quillMessage const *msg, struct core *core) {
    struct quillHeaderMaxForwards *maxForwards = quillHeaderMaxForwardsTryDecodeFromMessage(msg);
    if (!maxForwards) return;
    core->maxForwardsLeft = quillHeaderMaxForwardsMaxForwards(maxForwards);
    core->maxForwards = maxForwards;
}

static inline void coreReadRoute(struct quillMessage const *msg, struct core *core) {
    struct quillHeaderRoute *routes = quillHeaderRouteTryDecodeFromMessage(msg);
    struct quillRoute *route = routes ? quillHeaderRouteTryDecodeRouteAt(routes, 0) : NULL;
    if (route) {
        core->strings[CORE_ROUTE_IRI] = quillRouteIri(route);
        core->routes = quillHeaderRouteRoutesLength(routes);
        quillRouteRelease(route);
    }
    if (routes) quillHeaderRouteRelease(routes);
}

static inline void coreInit(struct core *core) {
    struct core const empty = {{0}, 0, 0, 0, 0, 0, NULL, NULL};
    *core = empty;
}

/* To be released. */
static inline void coreRead(struct quillMessage const *msg, struct core *core) {
    coreInit(core);
    coreReadVia(msg, core);
    coreReadFrom(msg, core);
    coreReadTo(msg, core);
    coreReadCallId(msg, core);
    coreReadCseq(msg, core);
    coreReadContact(msg, core);
    coreReadMaxForwards(msg, core);
    coreReadRoute(msg, core);
}

static inline void coreRelease(struct core const *core) {
    for (int i = 0; i < CORE_STRINGS; i++)
        if (core->strings[i]) coStringRelease(core->strings[i]);
    if (core->vias) quillHeaderViaRelease(core->vias);
    if (core->maxForwards) quillHeaderMaxForwardsRelease(core->maxForwards);
}

/* What a proxy writes into its Via. */
struct proxy {
    struct quillVersion *version;
    struct coString *transport, *host, *branch;
};

static inline struct proxy proxyCreate(void) {
    struct proxy const proxy = {quillVersionCreateSip20(), coStringCreateFromCstr("udp", -1),
                                coStringCreateFromCstr("proxy.fjord.example.com", -1),
                                coStringCreateFromCstr("z9hG4bKhop00001", -1)};
    return proxy;
}

static inline void proxyRelease(struct proxy const *proxy) {
    quillVersionRelease(proxy->version);
    coStringRelease(proxy->transport);
    coStringRelease(proxy->host);
    coStringRelease(proxy->branch);
}

/* A Via in front, one less in Max-Forwards, of a message whose core was read. It must have a Via. */
static inline void proxyHop(struct proxy const *proxy, struct core *core, struct quillMessage **msg) {
    struct quillVia *via = quillViaCreateWithPort(proxy->version, proxy->transport, proxy->host, 5060);
    quillViaSetBranch(&via, proxy->branch);
    quillHeaderViaPrependVia(&core->vias, via);
    quillHeaderViaEncodeToMessage(core->vias, msg);
    quillViaRelease(via);

    if (!core->maxForwards) return;
    quillHeaderMaxForwardsSetMaxForwards(&core->maxForwards, core->maxForwardsLeft - 1);
    quillHeaderMaxForwardsEncodeToMessage(core->maxForwards, msg);
}

#endif
