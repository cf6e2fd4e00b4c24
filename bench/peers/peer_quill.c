/* This library, through its public interface: what a proxy written against it would do. Decoding keeps the received
 * bytes and an index over them; typed headers are decoded when they are asked for. */
#include "../workloads.h"
#include "bench.h"

static struct proxy proxy;

static void init(void) {
    coModuleLoad(quillModule());
    proxy = proxyCreate();
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

/* A string as the harness sums it up: where it is and how long. */
static bstr S(struct coString const *s) {
    bstr r = {"", 0};
    if (!s) return r;
    r.p = (char const *)coStringBacking(s);
    r.n = (size_t)coStringLength(s);
    return r;
}

/* The strings of the core stand in the harness's order. */
static void rd(struct quillMessage *m, struct core *core, access_t *a) {
    coreRead(m, core);
    memset(a, 0, sizeof *a);
    for (int i = 0; i < CORE_STRINGS; i++) (&a->via_host)[i] = S(core->strings[i]);
    a->via_port = (long)core->viaPort;
    a->nvia = (long)core->viaCount;
    a->cseq = (long)core->cseq;
    a->maxfwd = (long)core->maxForwardsLeft;
    a->nroute = (long)core->routes;
    access_done(a);
}

static int decodeAccess(char const *p, size_t n, access_t *a) {
    struct quillMessage *m = parse(p, n);
    if (!m) return -1;
    struct core core;
    rd(m, &core, a);
    coreRelease(&core);
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
    struct core core;
    rd(m, &core, &a);
    proxyHop(&proxy, &core, &m);
    coreRelease(&core);
    long r = encode(m, out, cap);
    quillMessageRelease(m);
    return r;
}

static void *hold(char const *p, size_t n) { return parse(p, n); }
static void drop(void *m) { quillMessageRelease(m); }

const peer_t PEER = {"quill", init, decode, decodeAccess, hop, hold, encode, drop, NULL};
int main(int c, char **v) { return bench_main(c, v); }
