/* Sofia-SIP (Debian libsofia-sip-ua-dev). Copies the input into the message's
 * own buffer, then parses every known header eagerly, cutting strings in place
 * (NUL written into the copy); unknown headers kept. One su_home per message.
 * -DEXCOPY: MSG_DO_EXTRACT_COPY, i.e. keep each header's wire image, so that
 * an untouched header is sent from the image and not re-encoded. */
#include "bench.h"
#include <sofia-sip/msg.h>
#include <sofia-sip/msg_addr.h>
#include <sofia-sip/msg_mclass.h>
#include <sofia-sip/sip.h>
#include <sofia-sip/sip_header.h>
#include <sofia-sip/sip_parser.h>
#include <sofia-sip/sip_util.h>
#include <sofia-sip/su.h>
#include <sofia-sip/su_alloc.h>

#ifdef EXCOPY
#define FLAGS (MSG_DO_CANONIC | MSG_DO_EXTRACT_COPY)
#define NAME "sofia+img"
#else
#define FLAGS MSG_DO_CANONIC
#define NAME "sofia"
#endif

static msg_mclass_t const *g_mc;
static void s_init(void) {
    su_init();
    g_mc = sip_default_mclass();
}

static msg_t *parse(char const *p, size_t n) {
    msg_t *m = msg_make(g_mc, FLAGS, p, n);
    if (!m) return NULL;
    if (!msg_is_complete(m) || msg_has_error(m)) {
        msg_destroy(m);
        return NULL;
    }
    return m;
}
static int s_decode(char const *p, size_t n) {
    msg_t *m = parse(p, n);
    if (!m) return -1;
    msg_destroy(m);
    return 0;
}
static void rd(sip_t *s, access_t *a) {
    memset(a, 0, sizeof *a);
    if (s->sip_via) {
        sip_via_t *v = s->sip_via;
        a->via_host = BZ(v->v_host);
        a->via_port = v->v_port ? atol(v->v_port) : 0;
        a->via_branch = BZ(v->v_branch);
        for (; v; v = v->v_next) a->nvia++;
    }
    if (s->sip_from) {
        a->from_user = BZ(s->sip_from->a_url->url_user);
        a->from_host = BZ(s->sip_from->a_url->url_host);
        a->from_tag = BZ(s->sip_from->a_tag);
    }
    if (s->sip_to) {
        a->to_user = BZ(s->sip_to->a_url->url_user);
        a->to_host = BZ(s->sip_to->a_url->url_host);
        a->to_tag = BZ(s->sip_to->a_tag);
    }
    if (s->sip_call_id) a->callid = BZ(s->sip_call_id->i_id);
    if (s->sip_cseq) {
        a->cseq = s->sip_cseq->cs_seq;
        a->cseq_method = BZ(s->sip_cseq->cs_method_name);
    }
    if (s->sip_contact) {
        a->contact_host = BZ(s->sip_contact->m_url->url_host);
        a->contact_port = s->sip_contact->m_url->url_port ? atol(s->sip_contact->m_url->url_port) : 0;
    }
    if (s->sip_max_forwards) a->maxfwd = s->sip_max_forwards->mf_count;
    if (s->sip_route) {
        sip_route_t *r = s->sip_route;
        a->route_host = BZ(r->r_url->url_host);
        for (; r; r = r->r_next) a->nroute++;
    }
    access_done(a);
}
static int s_access(char const *p, size_t n, access_t *a) {
    msg_t *m = parse(p, n);
    if (!m) return -1;
    rd(sip_object(m), a);
    msg_destroy(m);
    return 0;
}
/* what the stack's transport does before writev(): serialize, prepare, iovec */
static long enc_iov(msg_t *m, char *out, size_t cap) {
    msg_iovec_t v[256];
    isize_t i, n;
    size_t k = 0;
    if (msg_serialize(m, (msg_pub_t *)sip_object(m)) < 0 || msg_prepare(m) < 0) return -1;
    n = msg_iovec(m, v, 256);
    if (n > 256) return -1;
    for (i = 0; i < n; i++) {
        if (k + v[i].mv_len > cap) return -1;
        memcpy(out + k, v[i].mv_base, v[i].mv_len);
        k += v[i].mv_len;
    }
    return (long)k;
}
static long s_hop(char const *p, size_t n, char *out, size_t cap) {
    msg_t *m = parse(p, n);
    access_t a;
    sip_t *s;
    sip_via_t *v;
    long r;
    if (!m) return -1;
    s = sip_object(m);
    rd(s, &a);
    v = sip_via_create(msg_home(m), "proxy.fjord.example.com", "5060", "SIP/2.0/UDP", "branch=z9hG4bKhop00001", NULL);
    msg_header_insert(m, (msg_pub_t *)s, (msg_header_t *)v);
    if (s->sip_max_forwards) {
        s->sip_max_forwards->mf_count--;
        msg_fragment_clear(s->sip_max_forwards->mf_common);
    }
    r = enc_iov(m, out, cap);
    msg_destroy(m);
    return r;
}
static void *s_hold(char const *p, size_t n) { return parse(p, n); }
static long s_encode(void *m, char *out, size_t cap) /* full re-encode of every header */
{
    size_t len = 0;
    char *s = msg_as_string(NULL, m, NULL, 0, &len);
    if (!s || len > cap) return -1;
    memcpy(out, s, len);
    su_free(NULL, s);
    return (long)len;
}
static void s_drop(void *m) { msg_destroy(m); }
/* W4b: headers encoded before (or kept as image) are only gathered */
static long s_encode2(void *m, char *out, size_t cap) { return enc_iov(m, out, cap); }

const peer_t PEER = {NAME, s_init, s_decode, s_access, s_hop, s_hold, s_encode, s_drop, s_encode2};
int main(int c, char **v) { return bench_main(c, v); }
