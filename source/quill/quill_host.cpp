// Hosts and internationalised domain names. Contract: quill_host.h.

#define CO_UNIT "source/quill/quill_host"

#include <nx/nx_dns.h>
#include <nx/nx_dns.hpp>
#include <quill/quill_host.h>
#include <quill/quill_scalar.hpp>

static bool isHost(co::Chars text) { return quill::isWhole(quill___SkipHost, text); }

// The host that an internationalised domain name stands for, or null.
static co::Ref<coString> hostOfDomainName(coString const *name) {
    co::Ref<coString> const kept(co::retained(name));
    co::Ref<coString> host;
    if (nxDnsIdnaDomainNameOk(kept.get())) host.reset(nxDnsIdnaDomainNameToAscii(kept.get()));
    if (host && !isHost(host->view())) host.reset(nullptr);
    return host;
}

bool quillHostOk(struct coString const *host) {
    CO_ASSERT_GIVEN(host);
    return isHost(host->view()) || hostOfDomainName(host);
}

struct coString *quill___HostEncode(struct coString *host) {
    CO_ASSERT_GIVEN(host);
    if (isHost(host->view())) return co::retained(host);
    co::Ref<coString> result = hostOfDomainName(host);
    CO_ASSERT(result, "length && length == quill___SkipHost( coStringBacking( result ), length )");
    return result.take();
}

// Domain names are kept in their Unicode form.
struct coString *quill___HostTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    co::Chars const text = co::chars(chs, length);
    return isHost(text) ? nx::tryToUnicode(text) : nullptr;
}
