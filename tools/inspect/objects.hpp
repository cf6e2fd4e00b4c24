// The library's objects as owners: what a function returned is released when its owner goes.
#ifndef QUILL_INSPECT_OBJECTS_HPP
#define QUILL_INSPECT_OBJECTS_HPP

#include <co/co_buffer.h>
#include <co/co_object.h>
#include <co/co_string.h>
#include <co/co_time.h>
#include <co/co_vector.h>
#include <memory>
#include <nx/nx_address.h>
#include <quill/quill_message.h>
#include <quill/quill_message_header.h>
#include <quill/quill_message_stream_decoder.h>
#include <quill/quill_module.h>
#include <quill/quill_version.h>

namespace inspect {

template <class T, void (*release)(T *)> struct Releaser {
    void operator()(T *object) const { release(object); }
};
template <class T, void (*release)(T *)> using Owner = std::unique_ptr<T, Releaser<T, release>>;

/// A type whose name is a function's name as well.
using RawHeader = struct quillMessageHeader;

using Address = Owner<nxAddress, nxAddressRelease>;
using Buffer = Owner<coBuffer, coBufferRelease>;
using Decoder = Owner<quillMessageStreamDecoder, quillMessageStreamDecoderRelease>;
using Header = Owner<RawHeader, quillMessageHeaderRelease>;
using Message = Owner<quillMessage, quillMessageRelease>;
using Object = Owner<coObj, coObjRelease>;
using String = Owner<coString, coStringRelease>;
using Time = Owner<coTime, coTimeRelease>;
using Vector = Owner<coVector, coVectorRelease>;
using Version = Owner<quillVersion, quillVersionRelease>;

/// The library, started as long as one of these lives.
struct Library {
    Library() { coModuleLoad(quillModule()); }
    ~Library() { coModuleUnload(quillModule()); }
    Library(Library const &) = delete;
    Library &operator=(Library const &) = delete;
};

/// Calls @p use with each raw header of a message.
template <class Use> void eachHeader(quillMessage const *message, Use use) {
    Vector const headers(quillMessageHeadersVector(message));
    for (int64_t i = 0; i < coVectorLength(headers.get()); i++) {
        Header const header(quillMessageHeaderFrom(coVectorObjAt(headers.get(), i)));
        use(header.get());
    }
}

/// Calls @p use with each line of a raw header.
template <class Use> void eachLine(RawHeader const *header, Use use) {
    for (int64_t i = 0; i < quillMessageHeaderLinesLength(header); i++) {
        String const line(quillMessageHeaderLineAt(header, i));
        use(line.get());
    }
}

} // namespace inspect

#endif
