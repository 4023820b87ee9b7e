#include "engine/errors/ErrorText.h"

namespace engine::errors {

Error Words::filled(std::initializer_list<std::string> arguments, int position) const {
    std::string text;
    std::size_t done = 0;
    for (const std::string& argument : arguments) {
        const std::size_t place = words_.find('{', done);
        text += words_.substr(done, place - done);
        text += argument;
        done = words_.find('}', place) + 1;
    }
    text += words_.substr(done);
    return {number_, reach_, text, position};
}

} // namespace engine::errors
