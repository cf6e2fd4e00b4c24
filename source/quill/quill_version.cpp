// The protocol name and version. Grammar and contract: quill_version.h.

#define CO_UNIT "source/quill/quill_version"

#include <quill/quill_family.hpp>
#include <quill/quill_protocol_name.h>
#include <quill/quill_protocol_version.h>
#include <quill/quill_skip.h>
#include <quill/quill_version.h>

struct quillVersion : coObj {
    static constexpr auto &sort = quill___sort_QUILL_VERSION;

    co::Slot<coString> protocolName;    // never null, upper case
    co::Slot<coString> protocolVersion; // never null, lower case

    static constexpr auto members() { return std::tuple(&quillVersion::protocolName, &quillVersion::protocolVersion); }
    static constexpr auto comparison() { return members(); }
};

QUILL_DEFINE_VALUE(Version, VERSION, version)
CO_DEFINE_STRING_MEMBER(quillVersion, version, ProtocolName, protocolName, quillProtocolNameOk, protocolName,
                        quillProtocolNameNormalize)
CO_DEFINE_STRING_MEMBER(quillVersion, version, ProtocolVersion, protocolVersion, quillProtocolVersionOk,
                        protocolVersion, quillProtocolVersionNormalize)

struct quillVersion *quill___VersionSip20;

void quill___VersionStartup(void) {
    co::Text const name("SIP", -1);
    co::Text const version("2.0", -1);
    quill::startShared(&quill___VersionSip20, quillVersionCreate(name, version));
}

void quill___VersionShutdown(void) { quill::stopShared(&quill___VersionSip20); }

struct quillVersion *quillVersionCreate(struct coString *protocolName, struct coString *protocolVersion) {
    CO_ASSERT_OK(quillProtocolNameOk, protocolName);
    CO_ASSERT_OK(quillProtocolVersionOk, protocolVersion);
    auto *version = co::make<quillVersion>();
    version->protocolName.adopt(quillProtocolNameNormalize(protocolName));
    version->protocolVersion.adopt(quillProtocolVersionNormalize(protocolVersion));
    return version;
}

struct quillVersion *quillVersionCreateSip20(void) {
    return co::retained(quill___VersionSip20);
}

bool quillVersionIsSip(struct quillVersion const *version) {
    CO_ASSERT_GIVEN(version);
    return version->protocolName->view() == U"SIP";
}

bool quillVersionIsSip20(struct quillVersion const *version) {
    CO_ASSERT_GIVEN(version);
    if (version == quill___VersionSip20) return true; // as of most messages
    return quillVersionIsSip(version) && version->protocolVersion->view() == U"2.0";
}

struct coString *quill___VersionEncode(struct quillVersion const *version) {
    CO_ASSERT_GIVEN(version);
    co::Chars const name = version->protocolName->view();
    co::Chars const number = version->protocolVersion->view();
    coString *text = co::makeString(co::length(name) + 1 + co::length(number));
    co::append(&text, {name, U"/", number});
    return text;
}

// protocol-name SLASH protocol-version
struct quillVersion *quill___VersionTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    if (co::equal(co::chars(chs, length), U"SIP/2.0")) return quillVersionCreateSip20();
    int64_t const name = quill___SkipProtocolName(chs, length);
    if (name == 0) return nullptr;
    int64_t const slash = quill___SkipSlash(chs + name, length - name);
    if (slash == 0) return nullptr;
    int64_t const at = name + slash;
    int64_t const version = quill___SkipProtocolVersion(chs + at, length - at);
    if (version == 0 || at + version != length) return nullptr;
    co::Ref<coString> const nameText(co::makeString(co::chars(chs, name)));
    co::Ref<coString> const versionText(co::makeString(co::chars(chs + at, version)));
    return quillVersionCreate(nameText.get(), versionText.get());
}
