/* This library, through its public interface: what a proxy written against it would do. Decoding keeps the received
 * bytes and an index over them; typed headers are decoded when they are asked for. */
#include "bench.h"
#include <quill/quill.h>

static struct quillVersion *sip20;
static struct coString *transport;
static struct coString *proxyHost;
static struct coString *proxyBranch;

static void init(void) {
    coModuleLoad(quillModule());
    sip20 = quillVersionCreateSip20();
    transport = coStringCreateFromCstr("udp", -1);
    proxyHost = coStringCreateFromCstr("proxy.fjord.example.com", -1);
    proxyBranch = coStringCreateFromCstr("z9hG4bKhop00001", -1);
}

static struct quillMessage *parse(char const *p, size_t n) {
    struct coBuffer *buf = coBufferCreateFromBytesCopy((uint8_t const *)p, (int64_t)n);
    struct quillMessage *m = quillMessageTryDecode(buf);
    coBufferRelease(buf);
    return m;
}

static int decode(char const *p, size_t n) {
    struct quillMessage *m = parse(p, n);
    if (!m) return -1;
    quillMessageRelease(m);
    return 0;
}

/* A string as the harness sums it up: where it is and how long. It is held until the end. */
typedef struct {
    struct coString *held[16];
    int n;
} held_t;
static bstr S(held_t *h, struct coString *s) {
    bstr r = {"", 0};
    if (!s) return r;
    h->held[h->n++] = s;
    r.p = (char const *)coStringBacking(s);
    r.n = (size_t)coStringLength(s);
    return r;
}

/* The headers that a hop changes, as the typed reading decoded them; null for what is absent. */
typedef struct {
    struct quillHeaderVia *vias;
    struct quillHeaderMaxForwards *maxForwards;
} changed_t;

static void release(changed_t *c) {
    if (c->vias) quillHeaderViaRelease(c->vias);
    if (c->maxForwards) quillHeaderMaxForwardsRelease(c->maxForwards);
}

static void rd(struct quillMessage *m, access_t *a, changed_t *c) {
    held_t h = {{0}, 0};
    memset(a, 0, sizeof *a);

    struct quillHeaderVia *vias = c->vias = quillHeaderViaTryDecodeFromMessage(m);
    struct quillVia *via = vias ? quillHeaderViaTryDecodeViaAt(vias, 0) : NULL;
    if (via) {
        a->via_host = S(&h, quillViaHost(via));
        a->via_branch = S(&h, quillViaBranch(via));
        a->via_port = (long)quillViaPort(via);
        a->nvia = (long)quillHeaderViaViasLength(vias);
        quillViaRelease(via);
    }

    struct quillHeaderFrom *from = quillHeaderFromTryDecodeFromMessage(m);
    if (from) {
        a->from_user = S(&h, quillHeaderFromIri(from));
        a->from_host = S(&h, quillHeaderFromDisplayName(from));
        a->from_tag = S(&h, quillHeaderFromTag(from));
        quillHeaderFromRelease(from);
    }
    struct quillHeaderTo *to = quillHeaderToTryDecodeFromMessage(m);
    if (to) {
        a->to_user = S(&h, quillHeaderToIri(to));
        a->to_host = S(&h, quillHeaderToDisplayName(to));
        a->to_tag = S(&h, quillHeaderToTag(to));
        quillHeaderToRelease(to);
    }
    struct quillHeaderCallId *callId = quillHeaderCallIdTryDecodeFromMessage(m);
    if (callId) {
        a->callid = S(&h, quillHeaderCallIdCallId(callId));
        quillHeaderCallIdRelease(callId);
    }
    struct quillHeaderCseq *cseq = quillHeaderCseqTryDecodeFromMessage(m);
    if (cseq) {
        a->cseq = (long)quillHeaderCseqCseq(cseq);
        a->cseq_method = S(&h, quillHeaderCseqMethod(cseq));
        quillHeaderCseqRelease(cseq);
    }
    struct quillHeaderContact *contacts = quillHeaderContactTryDecodeFromMessage(m);
    struct quillContact *contact = contacts && quillHeaderContactContactsLength(contacts) > 0
                                       ? quillHeaderContactTryDecodeContactAt(contacts, 0)
                                       : NULL;
    if (contact) {
        a->contact_host = S(&h, quillContactIri(contact));
        quillContactRelease(contact);
    }
    if (contacts) quillHeaderContactRelease(contacts);

    c->maxForwards = quillHeaderMaxForwardsTryDecodeFromMessage(m);
    if (c->maxForwards) a->maxfwd = (long)quillHeaderMaxForwardsMaxForwards(c->maxForwards);
    struct quillHeaderRoute *routes = quillHeaderRouteTryDecodeFromMessage(m);
    struct quillRoute *route = routes ? quillHeaderRouteTryDecodeRouteAt(routes, 0) : NULL;
    if (route) {
        a->route_host = S(&h, quillRouteIri(route));
        a->nroute = (long)quillHeaderRouteRoutesLength(routes);
        quillRouteRelease(route);
    }
    if (routes) quillHeaderRouteRelease(routes);

    access_done(a);
    for (int i = 0; i < h.n; i++) coStringRelease(h.held[i]);
}

static int decodeAccess(char const *p, size_t n, access_t *a) {
    struct quillMessage *m = parse(p, n);
    if (!m) return -1;
    changed_t c;
    rd(m, a, &c);
    release(&c);
    quillMessageRelease(m);
    return 0;
}

static long encode(void *m, char *out, size_t cap) {
    struct coBuffer *buf = quillMessageEncode(m);
    long n = (long)coBufferLength(buf);
    if ((size_t)n > cap)
        n = -1;
    else
        memcpy(out, coBufferBacking(buf), (size_t)n);
    coBufferRelease(buf);
    return n;
}

static long hop(char const *p, size_t n, char *out, size_t cap) {
    access_t a;
    struct quillMessage *m = parse(p, n);
    if (!m) return -1;
    changed_t c;
    rd(m, &a, &c);

    struct quillVia *via = quillViaCreateWithPort(sip20, transport, proxyHost, 5060);
    quillViaSetBranch(&via, proxyBranch);
    quillHeaderViaPrependVia(&c.vias, via);
    quillHeaderViaEncodeToMessage(c.vias, &m);
    quillViaRelease(via);

    if (c.maxForwards) {
        quillHeaderMaxForwardsSetMaxForwards(&c.maxForwards, quillHeaderMaxForwardsMaxForwards(c.maxForwards) - 1);
        quillHeaderMaxForwardsEncodeToMessage(c.maxForwards, &m);
    }
    release(&c);

    long r = encode(m, out, cap);
    quillMessageRelease(m);
    return r;
}

static void *hold(char const *p, size_t n) { return parse(p, n); }
static void drop(void *m) { quillMessageRelease(m); }

const peer_t PEER = {"quill", init, decode, decodeAccess, hop, hold, encode, drop, NULL};
int main(int c, char **v) { return bench_main(c, v); }
