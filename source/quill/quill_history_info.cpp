// One value of a History-Info header field. Grammar and contract: quill_history_info.h.

#define CO_UNIT "source/quill/quill_history_info"

#include <quill/quill_display_name.h>
#include <quill/quill_family.hpp>
#include <quill/quill_history_info.h>
#include <quill/quill_history_info_index.h>
#include <quill/quill_iri.h>
#include <quill/quill_name_addr.hpp>

struct quillHistoryInfo : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_HISTORY_INFO;

    co::TextSlot iri; // never null
    co::TextSlot displayName;
    co::TextSlot index; // never null
    co::TextSlot rc;
    co::TextSlot mp;
    co::TextSlot np;
    quill::ParamsSlot genericParams;

    static constexpr auto members() {
        return std::tuple(&quillHistoryInfo::iri, &quillHistoryInfo::displayName, &quillHistoryInfo::index,
                          &quillHistoryInfo::rc, &quillHistoryInfo::mp, &quillHistoryInfo::np,
                          &quillHistoryInfo::genericParams);
    }
    static constexpr auto comparison() { return members(); }
};

QUILL_DEFINE_VALUE(HistoryInfo, HISTORY_INFO, historyInfo)
CO_DEFINE_STRING_MEMBER(quillHistoryInfo, historyInfo, Iri, iri, quillIriOk, iri, co::asGiven)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillHistoryInfo, historyInfo, DisplayName, displayName, quillDisplayNameOk,
                                 displayName, co::asGiven)
CO_DEFINE_STRING_MEMBER(quillHistoryInfo, historyInfo, Index, index, quillHistoryInfoIndexOk, index, co::asGiven)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillHistoryInfo, historyInfo, Rc, rc, quillHistoryInfoIndexOk, rc, co::asGiven)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillHistoryInfo, historyInfo, Mp, mp, quillHistoryInfoIndexOk, mp, co::asGiven)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillHistoryInfo, historyInfo, Np, np, quillHistoryInfoIndexOk, np, co::asGiven)
CO_DEFINE_OBJECT_MEMBER(quillHistoryInfo, historyInfo, GenericParams, genericParams, quillGenericParams, genericParams)

struct quillHistoryInfo *quillHistoryInfoCreate(struct coString *iri, struct coString *index) {
    CO_ASSERT_OK(quillIriOk, iri);
    CO_ASSERT_OK(quillHistoryInfoIndexOk, index);
    auto *historyInfo = quill::makeAddress<quillHistoryInfo>(iri);
    historyInfo->index.set(index);
    return historyInfo;
}

static constexpr std::tuple lifted{
    quill::TextParam{U"index", quill___SkipHistoryInfoIndex, &quillHistoryInfo::index},
    quill::TextParam{U"rc", quill___SkipHistoryInfoIndex, &quillHistoryInfo::rc},
    quill::TextParam{U"mp", quill___SkipHistoryInfoIndex, &quillHistoryInfo::mp},
    quill::TextParam{U"np", quill___SkipHistoryInfoIndex, &quillHistoryInfo::np},
};

struct coString *quill___HistoryInfoEncode(struct quillHistoryInfo const *historyInfo) {
    CO_ASSERT_GIVEN(historyInfo);
    return quill::encodeAddress(*historyInfo, lifted);
}

// The index may be anywhere among the parameters, but has to be there.
static bool readHistoryInfo(quillHistoryInfo *historyInfo, co::Chars *line) {
    return quill::readAddress(historyInfo, line, quill::Bare::refused, lifted) && historyInfo->index;
}

struct quillHistoryInfo *quill___HistoryInfoTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    return quill::tryReadWhole<quillHistoryInfo>(co::chars(chs, length), readHistoryInfo);
}
