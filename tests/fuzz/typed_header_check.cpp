#include <co/co.h>
#include <co/co_obj.hpp>
#include <cstdio>
#include <cstdlib>
#include <fuzz/typed_header_check.hpp>
#include <quill/quill.h>
#include <quill/quill_internal.h>

using Header = struct quillMessageHeader;
using Message = struct quillMessage;

template <class T> static co::Ref<T> own(T *obj) { return co::Ref<T>(obj); }

static void require(bool condition, char const *field, char const *what) {
    if (condition) return;
    std::fprintf(stderr, "broken: %s: %s\n", field, what);
    std::abort();
}

namespace {

// A list of values: its elements, and a list that holds one element alone.
struct List {
    coSort const *(*sort)();
    int64_t (*length)(coObj const *hdr);
    coObj *(*tryDecodeAt)(coObj const *hdr, int64_t index);
    coObj *(*createOf)(coObj const *value);
};

#define LIST(Type, Element, Value)                                                                                     \
    {quillHeader##Type##Sort,                                                                                          \
     [](coObj const *hdr) { return quillHeader##Type##Element##sLength(quillHeader##Type##From(hdr)); },               \
     [](coObj const *hdr, int64_t index) {                                                                             \
         return quill##Value##Obj(quillHeader##Type##TryDecode##Element##At(quillHeader##Type##From(hdr), index));     \
     },                                                                                                                \
     [](coObj const *value) {                                                                                          \
         struct quillHeader##Type *hdr = quillHeader##Type##Create();                                                  \
         quillHeader##Type##Append##Element(&hdr, quill##Value##From(value));                                          \
         return quillHeader##Type##Obj(hdr);                                                                           \
     }},

List const lists[] = {
    LIST(Accept, Accept, Accept)                           //
    LIST(AcceptEncoding, AcceptEncoding, AcceptEncoding)   //
    LIST(AlertInfo, AlertInfo, AlertInfo)                  //
    LIST(CallInfo, CallInfo, CallInfo)                     //
    LIST(Contact, Contact, Contact)                        //
    LIST(Diversion, Diversion, Diversion)                  //
    LIST(ErrorInfo, ErrorInfo, ErrorInfo)                  //
    LIST(HistoryInfo, HistoryInfo, HistoryInfo)            //
    LIST(PAssertedIdentity, IdentityValue, IdentityValue)  //
    LIST(PPreferredIdentity, IdentityValue, IdentityValue) //
    LIST(Reason, Reason, Reason)                           //
    LIST(RecordRoute, Route, Route)                        //
    LIST(Route, Route, Route)                              //
    LIST(ServiceRoute, Route, Route)                       //
    LIST(UserToUser, UuiValue, UuiValue)                   //
    LIST(Via, Via, Via)                                    //
    LIST(Warning, Warning, WarningValue)                   //
};

// Two values are read but written as something else: User-to-User data that is no token is left out, and a warning code
// loses the zeros in front.
bool isWritable(coObj const *value) {
    if (coObjSort(value) == quillWarningValueSort())
        return quillWarningValueWarnCode(quillWarningValueFrom(value)) >= 100;
    if (coObjSort(value) != quillUuiValueSort()) return true;
    auto const data = own(quillUuiValueUuiData(quillUuiValueFrom(value)));
    return quillTokenOk(data.get());
}

// A value that is put into a list of its own, and read from there.
co::Ref<coObj> writtenAndRead(quillTypedHeader const *type, List const &list, coObj const *value) {
    auto const alone = own(list.createOf(value));
    require(list.length(alone.get()) == 1, type->name, "one element");
    auto const raw = own(type->encode(alone.get()));
    auto const read = own(type->tryDecode(raw.get()));
    require(bool(read), type->name, "an element that is written can be read");
    require(list.length(read.get()) == 1, type->name, "one element is read back as one");
    auto back = own(list.tryDecodeAt(read.get(), 0));
    require(bool(back), type->name, "a value that is written has a value");
    return back;
}

bool isTextOf(coObj const *value, coObj const *other) {
    return coStringEquals(own(coObjToString(value)).get(), own(coObjToString(other)).get());
}

// Whether an element is written with escapes. Such a parameter may be a generic one that is written without them, and is
// then read as one of those that the type has a member for, which are written before the generic ones.
bool hasEscapes(Header const *lines, int64_t index) {
    return coStringFindChars(own(quillMessageHeaderLineAt(lines, index)).get(), 0, U"\\", 1) >= 0;
}

void checkElements(quillTypedHeader const *type, coObj const *hdr) {
    auto const lines = own(type->encode(hdr));
    for (List const &list : lists) {
        if (list.sort() != type->sort()) continue;
        for (int64_t i = 0; i < list.length(hdr); i++) {
            auto value = own(list.tryDecodeAt(hdr, i));
            if (!value) continue; // the shape of an element, without a value
            own(coObjToString(value.get()));
            if (!isWritable(value.get())) continue;
            if (hasEscapes(lines.get(), i)) value = writtenAndRead(type, list, value.get());
            auto const back = writtenAndRead(type, list, value.get());
            require(isTextOf(value.get(), back.get()), type->name, "an element's canonical form is stable");
        }
    }
}

void checkEncoding(quillTypedHeader const *type, coObj const *hdr) {
    auto const raw = own(type->encode(hdr));
    if (quillMessageHeaderLinesLength(raw.get()) == 0) return; // an empty list or set
    auto const back = own(type->tryDecode(raw.get()));
    require(bool(back), type->name, "what is written can be read");
    auto const again = own(type->encode(back.get()));
    require(quillMessageHeaderEquals(raw.get(), again.get()), type->name, "the canonical form is stable");

    auto const store = own(type->store(hdr));
    auto const restored = own(type->tryRestore(store.get()));
    require(restored && coObjCompare(restored.get(), back.get()) == 0, type->name, "a store holds what is written");
    auto const copy = own(type->createFrom(hdr));
    require(coObjCompare(copy.get(), hdr) == 0, type->name, "a copy is equal");
    own(coObjToString(hdr));
}

void checkHeader(quillTypedHeader const *type, Message *msg) {
    auto const hdr = own(type->tryDecodeFromMessage(msg));
    if (!hdr) return;
    require(type->presentInMessage(msg), type->name, "what is decoded is present");
    require(coObjSort(hdr.get()) == type->sort(), type->name, "its sort");
    checkElements(type, hdr.get());
    checkEncoding(type, hdr.get());

    co::Ref<Message> changed(co::retained(msg));
    type->encodeToMessage(hdr.get(), changed.address());
    require(changed.get() != msg, type->name, "the message is another's too");
    require(type->presentInMessage(changed.get()), type->name, "what is put in is present");
    type->removeFromMessage(changed.address());
    require(!type->presentInMessage(changed.get()), type->name, "what is removed is absent");
    require(type->presentInMessage(msg), type->name, "the other holder sees no change");
}

} // namespace

void fuzz::checkTypedHeaders(uint8_t const *bytes, size_t length) {
    auto const buffer = own(coBufferCreateFromBytesCopy(bytes, static_cast<int64_t>(length)));
    auto const msg = own(quillMessageTryDecode(buffer.get()));
    if (!msg) return;
    for (int64_t i = 0; i < quillTypedHeadersLength(); i++) checkHeader(quillTypedHeaderAt(i), msg.get());
}
