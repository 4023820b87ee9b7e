#include "peer/Procedures.h"

#include <bit>
#include <cctype>
#include <charconv>

namespace peer {

namespace {

using Argument = ProcedureCall::Argument;

std::string numberText(double number) {
    char digits[32];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    return {digits, end};
}

void setNumber(Argument& argument, std::string text) {
    argument.literal = text;
    argument.text = std::move(text);
}

void setText(Argument& argument, std::string text) {
    std::string quoted = "N'";
    for (const char c : text) {
        quoted += c == '\'' ? "''" : std::string(1, c);
    }
    argument.literal = quoted + "'";
    argument.text = std::move(text);
}

void readInteger(ByteReader& in, Argument& argument) {
    in.u8();
    switch (in.u8()) {
    case 0:
        break;
    case 1:
        setNumber(argument, std::to_string(in.u8()));
        break;
    case 2:
        setNumber(argument, std::to_string(static_cast<std::int16_t>(in.u16())));
        break;
    case 4:
        setNumber(argument, std::to_string(static_cast<std::int32_t>(in.u32())));
        break;
    case 8:
        setNumber(argument, std::to_string(static_cast<std::int64_t>(in.u64())));
        break;
    default:
        throw ProtocolError("integer of an impossible length");
    }
}

void readFloat(ByteReader& in, Argument& argument) {
    in.u8();
    switch (in.u8()) {
    case 0:
        break;
    case 4:
        setNumber(argument, numberText(std::bit_cast<float>(in.u32())));
        break;
    case 8:
        setNumber(argument, numberText(std::bit_cast<double>(in.u64())));
        break;
    default:
        throw ProtocolError("float of an impossible length");
    }
}

void readWideText(ByteReader& in, Argument& argument) {
    const std::uint16_t largest = in.u16();
    in.take(5);
    if (largest == 0xFFFF) {
        if (in.u64() == ~0ULL) {
            return;
        }
        Bytes bytes;
        while (const std::uint32_t chunk = in.u32()) {
            const auto piece = in.take(chunk);
            bytes.insert(bytes.end(), piece.begin(), piece.end());
        }
        setText(argument, ByteReader(bytes).ucs2(bytes.size() / 2));
        return;
    }
    const std::uint16_t length = in.u16();
    if (length != 0xFFFF) {
        setText(argument, in.ucs2(length / 2));
    }
}

void readLongWideText(ByteReader& in, Argument& argument) {
    in.u32();
    in.take(5);
    const std::uint32_t length = in.u32();
    if (length != 0xFFFFFFFF) {
        setText(argument, in.ucs2(length / 2));
    }
}

void readNarrowText(ByteReader& in, Argument& argument) {
    in.u16();
    in.take(5);
    const std::uint16_t length = in.u16();
    if (length == 0xFFFF) {
        return;
    }
    const auto bytes = in.take(length);
    setText(argument, {bytes.begin(), bytes.end()});
}

Argument readArgument(ByteReader& in) {
    Argument argument;
    argument.name = in.ucs2(in.u8());
    argument.literal = "NULL";
    in.u8(); // by reference or by value
    switch (in.u8()) {
    case 0x26:
    case 0x68:
        readInteger(in, argument);
        break;
    case 0x6D:
        readFloat(in, argument);
        break;
    case 0xE7:
    case 0xEF:
        readWideText(in, argument);
        break;
    case 0x63:
        readLongWideText(in, argument);
        break;
    case 0xA7:
    case 0xAF:
        readNarrowText(in, argument);
        break;
    default:
        throw ProtocolError("argument of a type that isn't served");
    }
    return argument;
}

/// The text with each `@name` outside quotes replaced by its value: by the argument's own name, else by its place.
std::string filled(const std::string& text, const std::vector<Argument>& arguments, std::size_t first) {
    std::string out;
    bool quoted = false;
    std::size_t place = first;
    for (std::size_t i = 0; i < text.size(); ++i) {
        quoted ^= text[i] == '\'';
        const bool server = i + 1 < text.size() && text[i + 1] == '@';
        if (quoted || text[i] != '@' || server || (i > 0 && text[i - 1] == '@')) {
            out += text[i];
            continue;
        }
        std::size_t end = i + 1;
        while (end < text.size() && (std::isalnum(static_cast<unsigned char>(text[end])) || text[end] == '_')) {
            ++end;
        }
        const std::string name = text.substr(i, end - i);
        const Argument* found = nullptr;
        for (std::size_t k = first; k < arguments.size(); ++k) {
            if (arguments[k].name == name) {
                found = &arguments[k];
            }
        }
        if (!found && place < arguments.size()) {
            found = &arguments[place++];
        }
        out += found ? found->literal : name;
        i = end - 1;
    }
    return out;
}

} // namespace

ProcedureCall readProcedureCall(ByteReader& in) {
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
            throw ProtocolError("unknown procedure number");
        }
        call.name = kKnown[number];
    } else {
        call.name = in.ucs2(length);
    }
    in.u16();
    while (in.left() > 0) {
        call.arguments.push_back(readArgument(in));
    }
    return call;
}

ProcedureText procedureText(const ProcedureCall& call, std::map<std::int32_t, std::string>& prepared,
                            std::int32_t& last) {
    const auto& arguments = call.arguments;
    const auto text = [&](std::size_t place) {
        return place < arguments.size() ? arguments[place].text : std::string();
    };
    const auto handle = [&] {
        std::int32_t number = 0;
        const std::string digits = text(0);
        std::from_chars(digits.data(), digits.data() + digits.size(), number);
        return number;
    };
    ProcedureText result;
    if (call.name == "sp_executesql") {
        result.batch = filled(text(0), arguments, 2);
    } else if (call.name == "sp_prepare" || call.name == "sp_prepexec") {
        result.handle = ++last;
        prepared[last] = text(2);
        if (call.name == "sp_prepexec") {
            result.batch = filled(text(2), arguments, 3);
        }
    } else if (call.name == "sp_execute") {
        result.batch = filled(prepared[handle()], arguments, 1);
    } else if (call.name == "sp_unprepare") {
        prepared.erase(handle());
    } else if (call.name.rfind("sp_cursor", 0) == 0 || call.name == "sp_prepexecrpc") {
        result.unknown = true;
    } else {
        result.batch = "EXEC " + call.name;
        for (const auto& argument : arguments) {
            result.batch += (&argument == &arguments.front() ? " " : ", ") +
                            (argument.name.empty() ? "" : argument.name + " = ") + argument.literal;
        }
    }
    return result;
}

} // namespace peer
