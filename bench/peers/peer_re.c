/* libre (Debian libre-dev 1.1.0). Zero copy: (pointer,length) pairs into the
 * mbuf, which the message holds a reference to; one ref-counted heap block per
 * header, in a list and in a 32-bucket hash; top Via, From, To, CSeq and
 * Content-Type decoded eagerly, others on demand. It has NO message encoder:
 * W3/W4 are the idiom its own code uses, writing header text back to an mbuf. */
#include "bench.h"
#include <re/re.h>
#define DEBUG_MODULE "bench"
#define DEBUG_LEVEL 0
#include <re/re_dbg.h>

static struct mbuf *g_in, *g_o;
static void r_init(void) {
    dbg_init(DBG_EMERG, DBG_NONE);
    g_in = mbuf_alloc(65536);
    g_o = mbuf_alloc(65536);
}

/* the bytes are put into the receive buffer once per call (recv() does that in
 * a real program; the memcpy costs 15-40 ns and is left in for honesty) */
static struct sip_msg *parse(char const *p, size_t n) {
    struct sip_msg *m = NULL;
    g_in->pos = g_in->end = 0;
    mbuf_write_mem(g_in, (uint8_t const *)p, n);
    g_in->pos = 0;
    if (sip_msg_decode(&m, g_in)) return NULL;
    return m;
}
static int r_decode(char const *p, size_t n) {
    struct sip_msg *m = parse(p, n);
    if (!m) return -1;
    mem_deref(m);
    return 0;
}
static bstr P(struct pl x) { return BN(x.p, x.l); }
static void rd(struct sip_msg *m, access_t *a) {
    struct pl host, port;
    struct sip_addr ad;
    const struct sip_hdr *h;
    memset(a, 0, sizeof *a);
    port.p = NULL;
    port.l = 0;
    if (!uri_decode_hostport(&m->via.sentby, &host, &port)) {
        a->via_host = P(host);
        a->via_port = port.l ? pl_u32(&port) : 0;
    }
    a->via_branch = P(m->via.branch);
    a->nvia = sip_msg_hdr_count(m, SIP_HDR_VIA);
    a->from_user = P(m->from.uri.user);
    a->from_host = P(m->from.uri.host);
    a->from_tag = P(m->from.tag);
    a->to_user = P(m->to.uri.user);
    a->to_host = P(m->to.uri.host);
    a->to_tag = P(m->to.tag);
    a->callid = P(m->callid);
    a->cseq = m->cseq.num;
    a->cseq_method = P(m->cseq.met);
    h = sip_msg_hdr(m, SIP_HDR_CONTACT);
    if (h && !sip_addr_decode(&ad, &h->val)) {
        a->contact_host = P(ad.uri.host);
        a->contact_port = ad.uri.port;
    }
    if (m->maxfwd.l) a->maxfwd = pl_u32(&m->maxfwd);
    a->nroute = sip_msg_hdr_count(m, SIP_HDR_ROUTE);
    h = sip_msg_hdr(m, SIP_HDR_ROUTE);
    if (h && !sip_addr_decode(&ad, &h->val)) a->route_host = P(ad.uri.host);
    access_done(a);
}
static int r_access(char const *p, size_t n, access_t *a) {
    struct sip_msg *m = parse(p, n);
    if (!m) return -1;
    rd(m, a);
    mem_deref(m);
    return 0;
}
static long enc(struct sip_msg *m, int hop, char *out, size_t cap) {
    struct le *le;
    struct mbuf *o = g_o;
    o->pos = o->end = 0;
    if (m->req)
        mbuf_printf(o, "%r %r %r\r\n", &m->met, &m->ruri, &m->ver);
    else
        mbuf_printf(o, "%r %u %r\r\n", &m->ver, m->scode, &m->reason);
    if (hop) mbuf_printf(o, "Via: SIP/2.0/UDP %s:%u;branch=%s\r\n", "proxy.fjord.example.com", 5060, "z9hG4bKhop00001");
    for (le = m->hdrl.head; le; le = le->next) {
        const struct sip_hdr *h = le->data;
        if (hop && h->id == SIP_HDR_MAX_FORWARDS) {
            mbuf_printf(o, "Max-Forwards: %u\r\n", pl_u32(&h->val) - 1);
            continue;
        }
        mbuf_write_pl(o, &h->name);
        mbuf_write_mem(o, (uint8_t const *)": ", 2);
        mbuf_write_pl(o, &h->val);
        mbuf_write_mem(o, (uint8_t const *)"\r\n", 2);
    }
    mbuf_write_mem(o, (uint8_t const *)"\r\n", 2);
    mbuf_write_mem(o, mbuf_buf(m->mb), mbuf_get_left(m->mb));
    if (o->end > cap) return -1;
    memcpy(out, o->buf, o->end);
    return (long)o->end;
}
static long r_hop(char const *p, size_t n, char *out, size_t cap) {
    struct sip_msg *m = parse(p, n);
    access_t a;
    long r;
    if (!m) return -1;
    rd(m, &a);
    r = enc(m, 1, out, cap);
    mem_deref(m);
    return r;
}
static void *r_hold(char const *p, size_t n) { return parse(p, n); }
static long r_encode(void *m, char *out, size_t cap) { return enc(m, 0, out, cap); }
static void r_drop(void *m) { mem_deref(m); }

#ifndef RE_NAME
#define RE_NAME "libre-1.1"
#endif
const peer_t PEER = {RE_NAME, r_init, r_decode, r_access, r_hop, r_hold, r_encode, r_drop, NULL};
int main(int c, char **v) { return bench_main(c, v); }
