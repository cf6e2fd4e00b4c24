// Generic parameters. Grammar and contract: quill_generic_params.h.

#define CO_UNIT "source/quill/quill_generic_params"

#include <co/co_dict_table.hpp>
#include <co/co_vector.hpp>
#include <quill/quill_family.hpp>
#include <quill/quill_generic_param.hpp>
#include <quill/quill_generic_param_name.h>
#include <quill/quill_generic_params.hpp>
#include <quill/quill_skip.h>
#include <quill/quill_skip.hpp>

namespace {

struct ParamEntry {
    quillGenericParam *param;

    bool isGap() const { return !param; }
    co::Chars keyText() const { return param->name.view(); }
    void retain() const { co::retain(param); }
    void release() const { co::release(param); }
    void replaceBy(ParamEntry taken) { co::release(std::exchange(param, taken.param)); }
    int compareValue(ParamEntry other) const { return co::compare(param, other.param); }
};

} // namespace

struct quillGenericParams : coObj {
    static constexpr auto &sort = quill___sort_QUILL_GENERIC_PARAMS;

    co::Table<ParamEntry> params;

    static constexpr auto members() { return std::tuple(&quillGenericParams::params); }
    static constexpr auto comparison() { return members(); }
};

// The table is no word that holds a reference: it frees and copies what it holds itself.
template <> void co::freeMembers<quillGenericParams>(coObj *obj) {
    static_cast<quillGenericParams *>(obj)->params.poison();
}
template <> quillGenericParams *co::makeCopy(quillGenericParams const *source) {
    auto *copied = make<quillGenericParams>();
    copied->params.copy(source->params);
    return copied;
}

QUILL_DEFINE_VALUE(GenericParams, GENERIC_PARAMS, genericParams)

struct quillGenericParams *quillGenericParamsCreate(void) {
    return co::make<quillGenericParams>();
}

// By position.

int64_t quillGenericParamsLength(struct quillGenericParams const *params) {
    CO_ASSERT_GIVEN(params);
    return params->params.length();
}

struct quillGenericParam *quillGenericParamsParamAt(struct quillGenericParams const *params, int64_t index) {
    CO_ASSERT_GIVEN(params);
    return co::retained(params->params.at(index).param);
}

int64_t quillGenericParamsParamValueTypeAt(struct quillGenericParams const *params, int64_t index) {
    co::Ref<quillGenericParam> const param(quillGenericParamsParamAt(params, index));
    return quillGenericParamValueType(param.get());
}

struct coString *quillGenericParamsParamValueNormalizedAt(struct quillGenericParams const *params, int64_t index) {
    co::Ref<quillGenericParam> const param(quillGenericParamsParamAt(params, index));
    return quillGenericParamValueNormalized(param.get());
}

struct coString *quillGenericParamsParamValueNonNormalizedAt(struct quillGenericParams const *params, int64_t index) {
    co::Ref<quillGenericParam> const param(quillGenericParamsParamAt(params, index));
    return quillGenericParamValueNonNormalized(param.get());
}

// All at once.

struct coVector *quillGenericParamsParamsVector(struct quillGenericParams const *params) {
    CO_ASSERT_GIVEN(params);
    coVector *all = coVectorCreate();
    int64_t place = 0;
    while (ParamEntry const *entry = params->params.next(&place)) co::appendTaken(&all, co::retained(entry->param));
    return all;
}

void quillGenericParamsSetParamsVector(struct quillGenericParams **params, struct coVector const *vector) {
    CO_ASSERT_REFERENCE(params);
    CO_ASSERT_GIVEN(vector);
    quillGenericParams *own = co::writable(params);
    own->params.clear();
    for (int64_t i = 0; i < vector->length; i++) {
        CO_ASSERT(coObjSort(vector->at(i)) == quillGenericParamSort(), "gp");
        own->params.set({co::retained(quillGenericParamFrom(vector->at(i)))});
    }
}

// By name.

static quillGenericParam *find(quillGenericParams const *params, coString const *name) {
    co::Ref<coString> const normal(quillGenericParamNameNormalize(name));
    ParamEntry const *entry = params->params.find(normal->view());
    return entry ? entry->param : nullptr;
}

struct quillGenericParam *quillGenericParamsParam(struct quillGenericParams const *params,
                                                  struct coString const *name) {
    CO_ASSERT_GIVEN(params);
    return co::retained(find(params, name));
}

bool quillGenericParamsHasParam(struct quillGenericParams const *params, struct coString const *name) {
    CO_ASSERT_GIVEN(params);
    return find(params, name);
}

static void setTaken(quillGenericParams **params, quillGenericParam *taken) {
    co::writable(params)->params.set({taken});
}

void quillGenericParamsSetParam(struct quillGenericParams **params, struct quillGenericParam *param) {
    CO_ASSERT_REFERENCE(params);
    CO_ASSERT_GIVEN(param);
    setTaken(params, co::retained(param));
}

void quillGenericParamsDelParam(struct quillGenericParams **params, struct coString const *name) {
    CO_ASSERT_REFERENCE(params);
    co::Ref<coString> const normal(quillGenericParamNameNormalize(name));
    co::writable(params)->params.remove(normal->view());
}

CO_DEFINE_TEXT_FORMS_1(struct quillGenericParam *, quillGenericParamsParam, struct quillGenericParams const *, params,
                       name)
CO_DEFINE_TEXT_FORMS_1(bool, quillGenericParamsHasParam, struct quillGenericParams const *, params, name)
CO_DEFINE_TEXT_FORMS_1(void, quillGenericParamsDelParam, struct quillGenericParams **, params, name)

// The value of a parameter by name.

static co::Ref<quillGenericParam> present(quillGenericParams const *params, coString const *name) {
    co::Ref<quillGenericParam> param(quillGenericParamsParam(params, name));
    CO_ASSERT(param, "param");
    return param;
}

int64_t quillGenericParamsParamValueType(struct quillGenericParams const *params, struct coString const *name) {
    return quillGenericParamValueType(present(params, name).get());
}

struct coString *quillGenericParamsParamValueNormalized(struct quillGenericParams const *params,
                                                        struct coString const *name) {
    return quillGenericParamValueNormalized(present(params, name).get());
}

struct coString *quillGenericParamsParamValueNonNormalized(struct quillGenericParams const *params,
                                                           struct coString const *name) {
    return quillGenericParamValueNonNormalized(present(params, name).get());
}

CO_DEFINE_TEXT_FORMS_1(int64_t, quillGenericParamsParamValueType, struct quillGenericParams const *, params, name)
CO_DEFINE_TEXT_FORMS_1(struct coString *, quillGenericParamsParamValueNormalized, struct quillGenericParams const *,
                       params, name)
CO_DEFINE_TEXT_FORMS_1(struct coString *, quillGenericParamsParamValueNonNormalized, struct quillGenericParams const *,
                       params, name)

void quillGenericParamsSetParamValue(struct quillGenericParams **params, struct coString *name, int64_t type,
                                     struct coString *value) {
    CO_ASSERT_REFERENCE(params);
    setTaken(params, quillGenericParamCreateWithValue(name, type, value));
}

void quillGenericParamsSetParamValueCstr(struct quillGenericParams **params, char const *name, int64_t nameLength,
                                         int64_t type, char const *value, int64_t valueLength) {
    CO_ASSERT_REFERENCE(params);
    setTaken(params, quillGenericParamCreateWithValueCstr(name, nameLength, type, value, valueLength));
}

void quillGenericParamsSetParamValueWcstr(struct quillGenericParams **params, wchar_t const *name, int64_t nameLength,
                                          int64_t type, wchar_t const *value, int64_t valueLength) {
    CO_ASSERT_REFERENCE(params);
    setTaken(params, quillGenericParamCreateWithValueWcstr(name, nameLength, type, value, valueLength));
}

// The codec: each parameter with its leading semicolon.

static bool isAmong(co::Chars name, co::Chars const *names, size_t count) {
    for (size_t i = 0; i < count; i++)
        if (names[i] == name) return true;
    return false;
}

void quill::appendGenericParams(coString **text, quillGenericParams const *params, co::Chars const *without,
                                size_t count) {
    int64_t place = 0;
    while (ParamEntry const *entry = params->params.next(&place))
        if (!isAmong(entry->keyText(), without, count)) appendGenericParam(text, U";", entry->param);
}

// One at the start of the text, into the collection; how many code points it is, 0 where there is none.
static int64_t takeGenericParam(quillGenericParams **params, co::Chars text) {
    co::Chars rest = text;
    quillGenericParam *param = quill::readGenericParam(&rest);
    if (!param) return 0;
    setTaken(params, param);
    return co::length(text) - co::length(rest);
}

struct coString *quill___GenericParamsEncode(struct quillGenericParams const *genericParams) {
    CO_ASSERT_GIVEN(genericParams);
    coString *text = coStringCreate();
    quill::appendGenericParams(&text, genericParams);
    return text;
}

struct quillGenericParams *quill___GenericParamsTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    co::Ref<quillGenericParams> params(quillGenericParamsCreate());
    for (int64_t at = 0; at < length;) {
        int64_t const semi = quill___SkipSemi(chs + at, length - at);
        if (semi == 0) return nullptr;
        at += semi;
        if (at == length) break; // a semicolon with nothing behind it ends the list
        int64_t const count = takeGenericParam(params.address(), co::chars(chs + at, length - at));
        if (count == 0) return nullptr;
        at += count;
    }
    return params.take();
}

// The parameters of a value.

// One for all values, which copy it when they get a parameter.
static quillGenericParams *noGenericParams() {
    static constinit quillGenericParams none{{&quillGenericParams::sort, co::immortal}, {}};
    return &none;
}

quillGenericParams *quill::ParamsSlot::retained() const {
    if (params) return co::retained(params);
    if (piece.length == 0) return co::retained(noGenericParams());
    quillGenericParams *read = quill___GenericParamsTryDecode(piece.from(this).data(), piece.length);
    CO_ASSERT(read, "genericParams"); // that it can be read was seen when the piece was taken
    return read;
}

void quill::ParamsSlot::adopt(quillGenericParams *value) {
    piece = {};
    if (quillGenericParams *old = std::exchange(params, value)) co::release(old);
}

int quill::ParamsSlot::compare(ParamsSlot const &other) const {
    if (!params && !other.params && piece.from(this) == other.piece.from(&other)) return 0;
    return co::compare(co::Ref(retained()).get(), co::Ref(other.retained()).get());
}

// token [ EQUAL token ], as nearly all are; none where the value is anything else.
static constexpr auto plainParam =
    quill::sequence(quill::rules::token, quill::given(quill::rules::equal, quill::rules::token));

// Whether so many code points of the line are the piece now, or go on where it ends. A piece is short, since it is read
// anew for everybody who asks.
bool quill::ParamsSlot::takePlain(co::Chars line, co::Chars text, int64_t count) {
    constexpr int64_t longest = 256;
    if (params || co::length(line) > co::longestLine || piece.length + count > longest) return false;
    coChar const *const start = piece.length > 0 ? piece.from(this).data() : text.data();
    if (start + piece.length != text.data()) return false;
    piece = co::Piece::of(co::chars(start, piece.length + count), this);
    return true;
}

int64_t quill::ParamsSlot::take(co::Chars line, co::Chars text, int64_t separator) {
    co::Chars const param = from(text, separator);
    int64_t const plain = line.empty() || params ? 0 : matched(plainParam(param));
    if (plain > 0 && takePlain(line, text, separator + plain)) return plain;
    if (!params) adopt(retained());
    return takeGenericParam(&params, param);
}
