/* GNU oSIP2 parser (Debian libosip2-dev). Copies everything into its own
 * malloc'd structs; every known header is parsed eagerly, others are kept as
 * (name, value) pairs. */
#include "bench.h"
#include <osipparser2/osip_message.h>
#include <osipparser2/osip_parser.h>
#include <osipparser2/osip_port.h>

static void o_init(void) { parser_init(); }

static osip_message_t *parse(char const *p, size_t n) {
    osip_message_t *m;
    if (osip_message_init(&m)) return NULL;
    if (osip_message_parse(m, p, n)) {
        osip_message_free(m);
        return NULL;
    }
    return m;
}
static int o_decode(char const *p, size_t n) {
    osip_message_t *m = parse(p, n);
    if (!m) return -1;
    osip_message_free(m);
    return 0;
}
static void rd(osip_message_t *m, access_t *a) {
    osip_via_t *v = osip_list_get(&m->vias, 0);
    osip_generic_param_t *gp = NULL;
    osip_contact_t *c = NULL;
    osip_route_t *r;
    osip_header_t *h = NULL;
    memset(a, 0, sizeof *a);
    if (v) {
        a->via_host = BZ(v->host);
        a->via_port = v->port ? osip_atoi(v->port) : 0;
        osip_via_param_get_byname(v, "branch", &gp);
        if (gp) a->via_branch = BZ(gp->gvalue);
    }
    a->nvia = osip_list_size(&m->vias);
    if (m->from) {
        if (m->from->url) {
            a->from_user = BZ(m->from->url->username);
            a->from_host = BZ(m->from->url->host);
        }
        gp = NULL;
        osip_from_get_tag(m->from, &gp);
        if (gp) a->from_tag = BZ(gp->gvalue);
    }
    if (m->to) {
        if (m->to->url) {
            a->to_user = BZ(m->to->url->username);
            a->to_host = BZ(m->to->url->host);
        }
        gp = NULL;
        osip_to_get_tag(m->to, &gp);
        if (gp) a->to_tag = BZ(gp->gvalue);
    }
    if (m->call_id) a->callid = BZ(m->call_id->number); /* oSIP splits number@host */
    if (m->cseq) {
        a->cseq = osip_atoi(m->cseq->number);
        a->cseq_method = BZ(m->cseq->method);
    }
    osip_message_get_contact(m, 0, &c);
    if (c && c->url) {
        a->contact_host = BZ(c->url->host);
        a->contact_port = c->url->port ? osip_atoi(c->url->port) : 0;
    }
    osip_message_header_get_byname(m, "max-forwards", 0, &h);
    if (h && h->hvalue) a->maxfwd = osip_atoi(h->hvalue);
    a->nroute = osip_list_size(&m->routes);
    if (a->nroute) {
        r = osip_list_get(&m->routes, 0);
        if (r->url) a->route_host = BZ(r->url->host);
    }
    access_done(a);
}
static int o_access(char const *p, size_t n, access_t *a) {
    osip_message_t *m = parse(p, n);
    if (!m) return -1;
    rd(m, a);
    osip_message_free(m);
    return 0;
}
static long enc(osip_message_t *m, char *out, size_t cap) {
    char *s = NULL;
    size_t len = 0;
    if (osip_message_to_str(m, &s, &len) || len > cap) return -1;
    memcpy(out, s, len);
    osip_free(s);
    return (long)len;
}
static long o_hop(char const *p, size_t n, char *out, size_t cap) {
    osip_message_t *m = parse(p, n);
    access_t a;
    osip_via_t *v;
    osip_header_t *h = NULL;
    char num[24];
    long r;
    if (!m) return -1;
    rd(m, &a);
    osip_via_init(&v);
    v->version = osip_strdup("2.0");
    v->protocol = osip_strdup("UDP");
    v->host = osip_strdup("proxy.fjord.example.com");
    v->port = osip_strdup("5060");
    osip_via_set_branch(v, osip_strdup("z9hG4bKhop00001"));
    osip_list_add(&m->vias, v, 0);
    osip_message_header_get_byname(m, "max-forwards", 0, &h);
    if (h) {
        snprintf(num, sizeof num, "%d", osip_atoi(h->hvalue) - 1);
        osip_free(h->hvalue);
        h->hvalue = osip_strdup(num);
    }
    osip_message_force_update(m);
    r = enc(m, out, cap);
    osip_message_free(m);
    return r;
}
static void *o_hold(char const *p, size_t n) { return parse(p, n); }
static long o_encode(void *m, char *out, size_t cap) {
    osip_message_force_update(m);
    return enc(m, out, cap);
}
static void o_drop(void *m) { osip_message_free(m); }
/* W4b: unchanged since the last encode, oSIP hands out a copy of its cached text */
static long o_encode2(void *m, char *out, size_t cap) { return enc(m, out, cap); }

const peer_t PEER = {"osip2", o_init, o_decode, o_access, o_hop, o_hold, o_encode, o_drop, o_encode2};
int main(int c, char **v) { return bench_main(c, v); }
