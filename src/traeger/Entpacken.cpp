#include "traeger/Entpacken.h"

#include <algorithm>
#include <new>

#include <zlib.h>

namespace zerna {

namespace {

const Bytef* zlibBytes(std::string_view bytes) { return reinterpret_cast<const Bytef*>(bytes.data()); }

/// Unpacks as long as there is something to unpack, in growing steps: a short text costs little memory.
void run(z_stream& stream, Entpackt& result, std::size_t hoechstens)
{
    constexpr std::size_t FirstStep = 4096;
    int state = Z_OK;
    while (state == Z_OK && result.bytes.size() < hoechstens) {
        const std::size_t filled = result.bytes.size();
        const std::size_t step = std::min(hoechstens - filled, std::max(filled, FirstStep));
        result.bytes.resize(filled + step);
        stream.next_out = reinterpret_cast<Bytef*>(result.bytes.data() + filled);
        stream.avail_out = static_cast<uInt>(step);
        state = inflate(&stream, Z_NO_FLUSH);
        result.bytes.resize(filled + step - stream.avail_out);
    }
    result.vollstaendig = state == Z_STREAM_END;
}

} // namespace

Entpackt entpackt(std::string_view gepackt, std::size_t hoechstens)
{
    constexpr int ZlibOrGzip = 15 + 32;
    z_stream stream{};
    stream.next_in = const_cast<Bytef*>(zlibBytes(gepackt)); // zlib's own interface; it does not write there
    stream.avail_in = static_cast<uInt>(gepackt.size());
    if (inflateInit2(&stream, ZlibOrGzip) != Z_OK)
        throw std::bad_alloc();
    Entpackt result;
    run(stream, result, hoechstens);
    inflateEnd(&stream);
    return result;
}

std::string gepackt(std::string_view bytes)
{
    const auto count = static_cast<uLong>(bytes.size()); // a document, far below 4 GB
    uLongf size = compressBound(count);
    std::string result(size, '\0');
    if (compress(reinterpret_cast<Bytef*>(result.data()), &size, zlibBytes(bytes), count) != Z_OK)
        throw std::bad_alloc();
    result.resize(size);
    return result;
}

} // namespace zerna
