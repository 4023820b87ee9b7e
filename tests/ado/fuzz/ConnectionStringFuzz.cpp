#include "ado/ConnectionString.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const ado::ConnectionString read(text);
    if (read.text() != text || read.server().size() > size || read.password().size() > size) {
        std::abort();
    }
    return 0;
}
