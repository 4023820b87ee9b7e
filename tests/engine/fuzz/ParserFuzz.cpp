// Any text must either parse, print and have a shape, or be refused with an error of the server's own.

#include "engine/errors/Error.h"
#include "engine/text/Parser.h"
#include "engine/text/Print.h"
#include "engine/text/Shape.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        engine::print(engine::parse(text));
        engine::shapeOf(text);
    } catch (const engine::Error&) {
        return 0;
    }
    return 0;
}
