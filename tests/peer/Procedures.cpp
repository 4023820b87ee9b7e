#include "peer/Procedures.h"

#include "engine/errors/RunErrors.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <span>
#include <string_view>

namespace peer {

namespace {

constexpr engine::errors::ErrorText<int> kUnknownHandle{8179, engine::Error::Reach::Statement,
                                                        "Could not find prepared statement with handle {handle}."};

std::string small(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(),
                   [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); });
    return out;
}

bool continuesName(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == '@' || c == '#' || c == '$' ||
           static_cast<unsigned char>(c) >= 0x80;
}

/// How long the quoted text, quoted name or comment at a place is; 0 where none begins there.
std::size_t passedOver(std::string_view text, std::size_t begin) {
    const auto upTo = [&](std::string_view end, std::size_t from) {
        const std::size_t found = text.find(end, from);
        return (found == std::string_view::npos ? text.size() : found + end.size()) - begin;
    };
    switch (text[begin]) {
    case '\'':
        return upTo("'", begin + 1);
    case '"':
        return upTo("\"", begin + 1);
    case '[':
        return upTo("]", begin + 1);
    default:
        break;
    }
    const std::string_view two = text.substr(begin, 2);
    return two == "--" ? upTo("\n", begin) : two == "/*" ? upTo("*/", begin + 2) : 0;
}

struct Declaration {
    std::string name; ///< in small letters
    std::string type;
};

/// `@a int, @b decimal(10, 2) OUTPUT`
std::vector<Declaration> declarations(std::string_view text) {
    std::vector<Declaration> all;
    int depth = 0;
    std::string one;
    const auto add = [&] {
        const std::size_t name = std::min(one.find('@'), one.size());
        const std::size_t end = std::min(one.find_first_of(" \t\r\n", name), one.size());
        std::string type = one.substr(end);
        std::string words = small(type);
        for (const char* word : {"output", "out"}) {
            const std::size_t place = words.rfind(word);
            if (place != std::string::npos &&
                words.find_first_not_of(" \t\r\n", place + std::string_view(word).size()) == std::string::npos) {
                type.resize(place);
                words.resize(place);
            }
        }
        const std::size_t first = type.find_first_not_of(" \t\r\n");
        const std::size_t last = type.find_last_not_of(" \t\r\n");
        all.push_back({small(one.substr(name, end - name)),
                       first == std::string::npos ? std::string() : type.substr(first, last - first + 1)});
        one.clear();
    };
    for (const char c : text) {
        depth += c == '(' ? 1 : c == ')' ? -1 : 0;
        if (c == ',' && depth == 0) {
            add();
        } else {
            one += c;
        }
    }
    if (!one.empty()) {
        add();
    }
    return all;
}

/// The text with each `@name` outside quotes and comments replaced by the value of that parameter, converted to the
/// type of its declaration. A name without value stays, and the statement is refused for it.
std::string filled(std::string_view text, std::string_view declared, std::span<const Parameter> values) {
    std::map<std::string, std::string> constants;
    const auto all = declarations(declared);
    std::size_t place = 0;
    for (const Parameter& value : values) {
        const std::string name = small(value.name);
        const auto found =
            name.empty() ? all.begin() + static_cast<std::ptrdiff_t>(std::min(place, all.size()))
                         : std::find_if(all.begin(), all.end(), [&](const auto& one) { return one.name == name; });
        ++place;
        if (found != all.end()) {
            constants[found->name] = value.typed(found->type);
        } else if (!name.empty()) {
            constants[name] = value.typed();
        }
    }
    std::string out;
    for (std::size_t i = 0; i < text.size();) {
        std::size_t length = passedOver(text, i);
        if (length == 0 && text[i] == '@') {
            length = 1;
            while (i + length < text.size() && continuesName(text[i + length])) {
                ++length;
            }
            const auto value = constants.find(small(text.substr(i, length)));
            if (value != constants.end()) {
                out += value->second;
                i += length;
                continue;
            }
        }
        length = std::max<std::size_t>(length, 1);
        out += text.substr(i, length);
        i += length;
    }
    return out;
}

ProcedureCall readCall(ByteReader& in) {
    static constexpr const char* kKnown[] = {nullptr,
                                             "sp_cursor",
                                             "sp_cursoropen",
                                             "sp_cursorprepare",
                                             "sp_cursorexecute",
                                             "sp_cursorprepexec",
                                             "sp_cursorunprepare",
                                             "sp_cursorfetch",
                                             "sp_cursoroption",
                                             "sp_cursorclose",
                                             "sp_executesql",
                                             "sp_prepare",
                                             "sp_execute",
                                             "sp_prepexec",
                                             "sp_prepexecrpc",
                                             "sp_unprepare"};
    ProcedureCall call;
    const std::uint16_t length = in.u16();
    if (length == 0xFFFF) {
        const std::uint16_t number = in.u16();
        if (number == 0 || number >= std::size(kKnown)) {
            throw engine::errors::procedureMissing(std::to_string(number));
        }
        call.name = kKnown[number];
    } else {
        call.name = in.ucs2(length);
    }
    in.u16(); // options: to compile anew, without the columns' descriptions
    // Another call follows behind a mark, which as the length of a name would be too long.
    constexpr std::uint8_t kLongestName = 0x7F;
    while (in.left() > 0 && in.at(in.place(), 1)[0] <= kLongestName) {
        call.parameters.push_back(readParameter(in, static_cast<int>(call.parameters.size()) + 1));
    }
    return call;
}

} // namespace

std::int32_t PreparedTexts::add(Prepared prepared) {
    texts_[++last_] = std::move(prepared);
    return last_;
}

const PreparedTexts::Prepared& PreparedTexts::at(std::int32_t handle) const {
    const auto found = texts_.find(handle);
    if (found == texts_.end()) {
        throw kUnknownHandle(handle);
    }
    return found->second;
}

void PreparedTexts::remove(std::int32_t handle) {
    at(handle);
    texts_.erase(handle);
}

std::vector<ProcedureCall> readProcedureCalls(ByteReader& in) {
    std::vector<ProcedureCall> calls{readCall(in)};
    while (in.left() > 0) {
        in.u8(); // the mark
        if (in.left() > 0) {
            calls.push_back(readCall(in));
        }
    }
    return calls;
}

ProcedureText procedureText(const ProcedureCall& call, PreparedTexts& prepared) {
    const auto values = [&](std::size_t first) {
        const std::span all(call.parameters);
        return all.subspan(std::min(first, all.size()));
    };
    const auto text = [&](std::size_t place) {
        return place < call.parameters.size() ? call.parameters[place].text : std::string();
    };
    const auto handle = [&] {
        std::int32_t number = 0;
        const std::string digits = text(0);
        std::from_chars(digits.data(), digits.data() + digits.size(), number);
        return number;
    };
    const std::string name = small(call.name);
    ProcedureText result;
    if (name == "sp_executesql") {
        result.batch = filled(text(0), text(1), values(2));
    } else if (name == "sp_prepare" || name == "sp_prepexec") {
        result.handle = prepared.add({text(2), text(1)});
        result.batch = name == "sp_prepexec" ? filled(text(2), text(1), values(3)) : "";
    } else if (name == "sp_execute") {
        const auto& found = prepared.at(handle());
        result.batch = filled(found.text, found.declarations, values(1));
    } else if (name == "sp_unprepare") {
        prepared.remove(handle());
    } else if (name.starts_with("sp_cursor") || name == "sp_prepexecrpc") {
        throw engine::errors::procedureMissing(call.name);
    } else {
        result.inside = DoneKind::Procedure;
        result.batch = "EXEC " + call.name;
        const char* before = " ";
        for (const Parameter& parameter : call.parameters) {
            if (!parameter.isDefault) {
                result.batch += before + (parameter.name.empty() ? "" : parameter.name + " = ") + parameter.constant;
                before = ", ";
            }
        }
    }
    return result;
}

} // namespace peer
