/* Common part of every peer harness (C and C++). One peer = one executable.
 *
 *   ./peer_x TIME  corpus/ [block_us] [blocks]  -> peer workload message min median cycles   (per message: ns, ns, median core cycles)
 *   ./peer_x DUMP  corpus/                      -> what the typed access saw (for cross-checking the peers)
 *   ./peer_x OUT   corpus/ dir/                 -> writes W3's and W4's bytes to dir/<msg>.<peer>.w3|w4
 *   ./peer_x SCALE kind [max_n]                 -> decode time over n for one hostile shape
 *   built with -DCOUNT: ./peer_x ALLOC corpus/  -> peer workload message allocs bytes peak_live
 */
#ifndef BENCH_H
#define BENCH_H
#ifndef _GNU_SOURCE
#define _GNU_SOURCE 1
#endif
#include <dirent.h>
#include <malloc.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct {
    char const *p;
    size_t n;
} bstr;
static inline bstr BZ(char const *s) {
    bstr r;
    r.p = s ? s : "";
    r.n = s ? strlen(s) : 0;
    return r;
}
static inline bstr BN(char const *s, size_t n) {
    bstr r;
    r.p = s;
    r.n = s ? n : 0;
    return r;
}

/* what W2 has to read from a message */
typedef struct {
    bstr via_host, via_branch, from_user, from_host, from_tag, to_user, to_host, to_tag;
    bstr callid, cseq_method, contact_host, route_host;
    long via_port, cseq, contact_port, maxfwd, nvia, nroute;
} access_t;

typedef struct {
    char name[32];
    char *data;
    size_t len;
} bmsg;
static bmsg g_corpus[32];
static int g_n;

static inline uint64_t access_sum(access_t const *a) {
    bstr const *s = (bstr const *)a;
    uint64_t h = 0;
    for (int i = 0; i < 12; i++) h = h * 31 + s[i].n + (s[i].n ? (unsigned char)s[i].p[0] : 0);
    return h + a->via_port + a->cseq + a->contact_port + a->maxfwd + a->nvia + a->nroute;
}

/* each peer calls this while the message is still alive */
static volatile uint64_t g_sink;
static int g_copy;
static inline void access_done(access_t *a) {
    g_sink += access_sum(a);
    if (g_copy) {
        bstr *s = (bstr *)a;
        for (int i = 0; i < 12; i++) s[i].p = s[i].n ? strndup(s[i].p, s[i].n) : "";
    }
}

/* A peer supplies these. A NULL function = the peer cannot do that workload. */
typedef struct {
    char const *name;
    void (*init)(void);
    int (*decode)(char const *p, size_t n);                      /* W1; 0 = parsed, freed inside */
    int (*decode_access)(char const *p, size_t n, access_t *a);  /* W2 */
    long (*hop)(char const *p, size_t n, char *out, size_t cap); /* W3; bytes written, <0 = error */
    /* W4: hold = decode and keep; encode it repeatedly; drop */
    void *(*hold)(char const *p, size_t n);
    long (*encode)(void *m, char *out, size_t cap);
    void (*drop)(void *m);
    /* W4b, optional: a second way of encoding (cached or scatter/gather) */
    long (*encode2)(void *m, char *out, size_t cap);
} peer_t;
extern const peer_t PEER;

#ifdef COUNT
#ifdef __cplusplus
#define BT noexcept
#else
#define BT
#endif
extern void *__libc_malloc(size_t);
extern void *__libc_calloc(size_t, size_t);
extern void *__libc_realloc(void *, size_t);
extern void __libc_free(void *);
static uint64_t c_n, c_b;
static int64_t c_live, c_peak;
static void c_add(void *p) {
    if (p) {
        c_live += malloc_usable_size(p);
        if (c_live > c_peak) c_peak = c_live;
    }
}
void *malloc(size_t n) BT {
    c_n++;
    c_b += n;
    void *p = __libc_malloc(n);
    c_add(p);
    return p;
}
void *calloc(size_t a, size_t b) BT {
    c_n++;
    c_b += a * b;
    void *p = __libc_calloc(a, b);
    c_add(p);
    return p;
}
void *realloc(void *o, size_t n) BT {
    c_n++;
    c_b += n;
    if (o) c_live -= malloc_usable_size(o);
    void *p = __libc_realloc(o, n);
    c_add(p);
    return p;
}
void free(void *p) BT {
    if (p) c_live -= malloc_usable_size(p);
    __libc_free(p);
}
#endif

static inline double now_ns(void) {
    struct timespec t;
    clock_gettime(CLOCK_MONOTONIC, &t);
    return t.tv_sec * 1e9 + t.tv_nsec;
}
/* the core's clock wanders (3.0-3.7 GHz on the machine this was written on), so every block is
 * also given in core cycles: a chain of dependent multiplications (3 cycles each on every x86-64
 * since 2011) before and after the block tells the clock. Elsewhere (not x86-64) it returns 1. */
static inline double ghz(void) {
#ifdef __x86_64__
    double a = now_ns();
    uint64_t x = 3;
    for (int i = 0; i < 4000; i++) __asm__ volatile("imul %0,%0" : "+r"(x));
    g_sink += x;
    return 12000 / (now_ns() - a);
#else
    return 1;
#endif
}
static int cmp_d(void const *a, void const *b) {
    double x = *(double *)a, y = *(double *)b;
    return x < y ? -1 : x > y;
}
static int cmp_m(void const *a, void const *b) { return strcmp(((bmsg *)a)->name, ((bmsg *)b)->name); }

static void corpus_load(char const *dir) {
    DIR *d = opendir(dir);
    struct dirent *e;
    if (!d) {
        perror(dir);
        exit(1);
    }
    while ((e = readdir(d)) != NULL) {
        char path[512];
        char *dot = strrchr(e->d_name, '.');
        if (!dot || strcmp(dot, ".sip")) continue;
        snprintf(path, sizeof path, "%s/%s", dir, e->d_name);
        FILE *f = fopen(path, "rb");
        if (!f) continue;
        bmsg *m = &g_corpus[g_n++];
        memset(m, 0, sizeof *m);
        memcpy(m->name, e->d_name, (size_t)(dot - e->d_name) < 31 ? (size_t)(dot - e->d_name) : 31);
        m->data = (char *)calloc(1, 65536); /* zero after the end: some peers want a NUL there */
        m->len = fread(m->data, 1, 65000, f);
        fclose(f);
    }
    closedir(d);
    qsort(g_corpus, g_n, sizeof g_corpus[0], cmp_m);
}

static char g_out[1 << 20];
static access_t g_acc;
static void *g_held;
static uint64_t one(int w, bmsg const *m) {
    switch (w) {
    case 1:
        return PEER.decode(m->data, m->len);
    case 2: {
        int r = PEER.decode_access(m->data, m->len, &g_acc);
        return r;
    }
    case 3:
        return PEER.hop(m->data, m->len, g_out, sizeof g_out);
    case 4:
        return PEER.encode(g_held, g_out, sizeof g_out);
    default:
        return PEER.encode2(g_held, g_out, sizeof g_out);
    }
}
static int has(int w) {
    return w == 1   ? !!PEER.decode
           : w == 2 ? !!PEER.decode_access
           : w == 3 ? !!PEER.hop
           : w == 4 ? !!PEER.encode
                    : !!PEER.encode2;
}
static char const *wname[] = {"", "W1", "W2", "W3", "W4", "W4b"};

static void do_time(double block_us, int blocks) {
    double *t = (double *)malloc(sizeof(double) * blocks * 2), *cy = t + blocks;
    for (int mi = 0; mi < g_n; mi++)
        for (int w = 1; w <= 5; w++) {
            if (!has(w)) continue;
            if (w >= 4) {
                g_held = PEER.hold(g_corpus[mi].data, g_corpus[mi].len);
                if (!g_held) {
                    printf("%s %s %s FAIL FAIL FAIL\n", PEER.name, wname[w], g_corpus[mi].name);
                    continue;
                }
            }
            long it = 16;
            double el;
            for (;;) { /* warm up and find the loop count */
                double a = now_ns();
                for (long i = 0; i < it; i++) g_sink += one(w, &g_corpus[mi]);
                el = now_ns() - a;
                if (el > block_us * 1000 / 2) break;
                it *= 2;
            }
            it = (long)(it * block_us * 1000 / el) + 1;
            for (int b = 0; b < blocks; b++) {
                double g = ghz(), a = now_ns();
                for (long i = 0; i < it; i++) g_sink += one(w, &g_corpus[mi]);
                t[b] = (now_ns() - a) / it;
                cy[b] = t[b] * (g + ghz()) / 2;
            }
            qsort(t, blocks, sizeof *t, cmp_d);
            qsort(cy, blocks, sizeof *t, cmp_d);
            printf("%s %s %s %.1f %.1f %.0f\n", PEER.name, wname[w], g_corpus[mi].name, t[0], t[blocks / 2],
                   cy[blocks / 2]);
            fflush(stdout);
            if (w >= 4) PEER.drop(g_held);
        }
    free(t);
}

static void pb(char const *k, bstr s) { printf("  %s=%.*s\n", k, (int)s.n, s.p ? s.p : ""); }
static void do_dump(void) {
    g_copy = 1;
    for (int i = 0; i < g_n; i++) {
        access_t a;
        memset(&a, 0, sizeof a);
        int r = PEER.decode(g_corpus[i].data, g_corpus[i].len);
        int r2 = PEER.decode_access(g_corpus[i].data, g_corpus[i].len, &a);
        printf("[%s] decode=%d access=%d\n", g_corpus[i].name, r, r2);
        fflush(stdout);
        pb("via_host", a.via_host);
        pb("via_branch", a.via_branch);
        pb("from_user", a.from_user);
        pb("from_host", a.from_host);
        pb("from_tag", a.from_tag);
        pb("to_user", a.to_user);
        pb("to_host", a.to_host);
        pb("to_tag", a.to_tag);
        pb("callid", a.callid);
        pb("cseq_method", a.cseq_method);
        pb("contact_host", a.contact_host);
        pb("route_host", a.route_host);
        printf("  via_port=%ld cseq=%ld contact_port=%ld maxfwd=%ld nvia=%ld nroute=%ld\n", a.via_port, a.cseq,
               a.contact_port, a.maxfwd, a.nvia, a.nroute);
    }
}
static void do_out(char const *dir) {
    for (int i = 0; i < g_n; i++)
        for (int w = 3; w <= 5; w++) {
            if (!has(w)) continue;
            if (w >= 4) g_held = PEER.hold(g_corpus[i].data, g_corpus[i].len);
            long n = (w >= 4 && !g_held) ? -1 : (long)one(w, &g_corpus[i]);
            if (w >= 4 && g_held) PEER.drop(g_held);
            char path[600];
            snprintf(path, sizeof path, "%s/%s.%s.%s", dir, g_corpus[i].name, PEER.name, wname[w]);
            FILE *f = fopen(path, "wb");
            if (f) {
                if (n > 0) fwrite(g_out, 1, n, f);
                fclose(f);
            }
            printf("%s %s %s %ld bytes (in %zu)\n", PEER.name, wname[w], g_corpus[i].name, n, g_corpus[i].len);
        }
}

/* hostile shapes: kinds are
 *   same     n header lines "X-Same: value"          samev   n lines "Via: ..."
 *   via      one Via header with n comma elements     params  one Contact with n ;params
 *   uriparm  Request-URI with n ;params               route   n "Route: <sip:h;lr>" lines
 *   unk      n header lines with different names      fold    one header folded n times */
static char *shape(char const *kind, long n, size_t *len) {
    size_t cap = 4096 + (size_t)n * 96;
    char *b = (char *)calloc(1, cap + 16), *p = b;
    int isvia = !strcmp(kind, "via");
    p += sprintf(p, "INVITE sip:bjorn@fjord.example.com");
    if (!strcmp(kind, "uriparm"))
        for (long i = 0; i < n; i++) p += sprintf(p, ";p%ld=v%ld", i, i);
    p += sprintf(p, " SIP/2.0\r\nVia: SIP/2.0/UDP ws7.hamn.example.org;branch=z9hG4bK776asdhds");
    if (isvia)
        for (long i = 0; i < n; i++) p += sprintf(p, ",SIP/2.0/UDP h%ld.example.org;branch=z9hG4bK%ld", i, i);
    p += sprintf(p, "\r\nMax-Forwards: 70\r\nFrom: <sip:astrid@hamn.example.org>;tag=1928301774\r\n"
                    "To: <sip:bjorn@fjord.example.com>\r\nCall-ID: a84b4c76e66710@ws7\r\nCSeq: 314159 INVITE\r\n"
                    "Contact: <sip:astrid@ws7.hamn.example.org>");
    if (!strcmp(kind, "params"))
        for (long i = 0; i < n; i++) p += sprintf(p, ";p%ld=v%ld", i, i);
    p += sprintf(p, "\r\n");
    for (long i = 0; i < n; i++) {
        if (!strcmp(kind, "same"))
            p += sprintf(p, "X-Same: value number %ld\r\n", i);
        else if (!strcmp(kind, "samev"))
            p += sprintf(p, "Via: SIP/2.0/UDP h%ld.example.org;branch=z9hG4bK%ld\r\n", i, i);
        else if (!strcmp(kind, "route"))
            p += sprintf(p, "Route: <sip:h%ld.example.org;lr>\r\n", i);
        else if (!strcmp(kind, "unk"))
            p += sprintf(p, "X-H%ld: value number %ld\r\n", i, i);
    }
    if (!strcmp(kind, "fold")) {
        p += sprintf(p, "Subject: a");
        for (long i = 0; i < n; i++) p += sprintf(p, "\r\n b%ld", i);
        p += sprintf(p, "\r\n");
    }
    p += sprintf(p, "Content-Length: 0\r\n\r\n");
    *len = p - b;
    return b;
}
static void do_scale(char const *kind, long maxn) {
    for (long n = 10; n <= maxn; n *= 10)
        for (int half = 0; half < 2; half++) {
            long k = half ? n * 3 : n;
            if (k > maxn) break;
            size_t len;
            char *b = shape(kind, k, &len);
            double best = 1e30, t0 = now_ns();
            int r = 0, runs = 0;
            while (runs < 3 || (runs < 50 && now_ns() - t0 < 3e8)) {
                double a = now_ns();
                r = PEER.decode(b, len);
                a = now_ns() - a;
                if (a < best) best = a;
                runs++;
                if (now_ns() - t0 > 2e10) break;
            }
            printf("%s %s n=%ld bytes=%zu rc=%d ns=%.0f ns_per_n=%.1f\n", PEER.name, kind, k, len, r, best, best / k);
            fflush(stdout);
            free(b);
        }
}
#ifdef COUNT
static void do_alloc(void) {
    for (int mi = 0; mi < g_n; mi++)
        for (int w = 1; w <= 5; w++) {
            if (!has(w)) continue;
            if (w >= 4) {
                g_held = PEER.hold(g_corpus[mi].data, g_corpus[mi].len);
                if (!g_held) continue;
            }
            for (int i = 0; i < 20; i++) one(w, &g_corpus[mi]);
            c_n = c_b = 0;
            int64_t base = c_live;
            c_peak = c_live;
            one(w, &g_corpus[mi]);
            uint64_t n = c_n, by = c_b;
            int64_t pk = c_peak - base;
            printf("%s %s %s allocs=%llu bytes=%llu peak_live=%lld\n", PEER.name, wname[w], g_corpus[mi].name,
                   (unsigned long long)n, (unsigned long long)by, (long long)pk);
            if (w >= 4) PEER.drop(g_held);
        }
}
#endif
static int bench_main(int argc, char **argv) {
    if (argc < 3) {
        fprintf(stderr, "usage: see bench.h\n");
        return 2;
    }
    if (PEER.init) PEER.init();
    if (!strcmp(argv[1], "SCALE")) {
        do_scale(argv[2], argc > 3 ? atol(argv[3]) : 10000);
        return 0;
    }
    corpus_load(argv[2]);
    if (!strcmp(argv[1], "TIME"))
        do_time(argc > 3 ? atof(argv[3]) : 1000, argc > 4 ? atoi(argv[4]) : 15);
    else if (!strcmp(argv[1], "DUMP"))
        do_dump();
    else if (!strcmp(argv[1], "OUT"))
        do_out(argc > 3 ? argv[3] : ".");
#ifdef COUNT
    else if (!strcmp(argv[1], "ALLOC"))
        do_alloc();
#endif
    return 0;
}
#ifdef __cplusplus
}
#endif
#endif
