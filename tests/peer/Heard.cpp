#include "peer/Heard.h"

#include "peer/Packets.h"

#include <bit>
#include <cstdio>
#include <map>

namespace peer {

namespace {

std::string hex(unsigned value) {
    char text[16];
    std::snprintf(text, sizeof text, "%X", value);
    return text;
}

std::string hex(std::span<const std::uint8_t> bytes) {
    std::string out;
    for (const std::uint8_t byte : bytes) {
        out += hex(byte >> 4) + hex(byte & 15);
    }
    return out;
}

class Reader {
public:
    Reader(const Bytes& body, bool atLeast72) : in_(body), wide_(atLeast72) {}

    std::vector<std::string> lines() {
        std::vector<std::string> all;
        while (in_.left() > 0) {
            all.push_back(line());
        }
        return all;
    }

private:
    struct Type {
        std::uint8_t token = 0;
        std::uint32_t largest = 0;
        std::string name;
    };

    std::string line() {
        const std::uint8_t token = in_.u8();
        switch (token) {
        case 0x81:
            return columns();
        case 0xD1:
            return row();
        case 0xFD:
        case 0xFE:
        case 0xFF:
            return done(token);
        case 0xAA:
        case 0xAB:
            return notice(token == 0xAA);
        case 0xE3:
            return change();
        case 0x79:
            return "status " + std::to_string(static_cast<std::int32_t>(in_.u32()));
        case 0xAC:
            return returned();
        case 0xAD:
            in_.take(in_.u16());
            return "login";
        default:
            throw ProtocolError("unknown token " + hex(token));
        }
    }

    std::string done(std::uint8_t token) {
        const std::string name = token == 0xFD ? "done " : token == 0xFE ? "doneproc " : "doneinproc ";
        const std::string status = hex(in_.u16()) + " ";
        const std::string command = hex(in_.u16()) + " ";
        return name + status + command + std::to_string(wide_ ? in_.u64() : in_.u32());
    }

    std::string notice(bool error) {
        const std::uint16_t length = in_.u16();
        ByteReader body(in_.take(length));
        const std::string number = std::to_string(body.u32());
        body.u16(); // state and severity
        const std::string text = body.ucs2(body.u16());
        return error ? "error " + number : "info " + number + " " + text;
    }

    std::string change() {
        const std::uint16_t length = in_.u16();
        ByteReader body(in_.take(length));
        const int type = body.u8();
        return "change " + std::to_string(type) + (type == 1 ? " " + body.ucs2(body.u8()) : "");
    }

    std::string returned() {
        const std::string ordinal = std::to_string(in_.u16());
        const std::string name = in_.ucs2(in_.u8());
        in_.u8();
        wide_ ? in_.u32() : in_.u16();
        in_.u16();
        const Type read = type(false);
        return "value " + ordinal + " " + name + " " + value(read);
    }

    std::string columns() {
        std::string all = "columns";
        types_.clear();
        for (int left = in_.u16(); left > 0; --left) {
            wide_ ? in_.u32() : in_.u16();
            in_.u16();
            types_.push_back(type(true));
            const std::string name = in_.ucs2(in_.u8());
            all += (types_.size() > 1 ? ", " : " ") + (name.empty() ? "-" : name) + " " + types_.back().name;
        }
        return all;
    }

    Type type(bool ofColumn) {
        static const std::map<int, const char*> kNames = {
            {0x26, "int"},    {0x68, "bit"},     {0x6D, "float"}, {0x6A, "decimal"},  {0x6F, "datetime"},
            {0xA5, "binary"}, {0xA7, "varchar"}, {0xAF, "char"},  {0xE7, "nvarchar"}, {0xEF, "nchar"},
            {0x22, "image"},  {0x23, "text"},    {0x63, "ntext"}, {0x6E, "money"},    {0x38, "fixedint"}};
        Type type;
        type.token = in_.u8();
        const bool collated = type.token > 0xA5 || type.token == 0x23 || type.token == 0x63;
        if (type.token == 0x38) {
            type.largest = 4;
        } else if (type.token == 0x22 || type.token == 0x23 || type.token == 0x63) {
            type.largest = in_.u32();
        } else if (type.token >= 0xA5) {
            type.largest = in_.u16();
        } else {
            type.largest = in_.u8();
        }
        type.name = std::string(kNames.at(type.token)) + " " + std::to_string(type.largest);
        if (type.token == 0x6A) {
            type.name += " " + std::to_string(in_.u8());
            type.name += " " + std::to_string(in_.u8());
        }
        in_.take(collated ? 5 : 0);
        if (ofColumn && (type.token == 0x22 || type.token == 0x23 || type.token == 0x63)) {
            in_.take(std::size_t{2} * in_.u16());
        }
        return type;
    }

    std::string row() {
        std::string all = "row ";
        for (const Type& type : types_) {
            all += (&type == &types_.front() ? "" : "|") + value(type);
        }
        return all;
    }

    std::string value(const Type& type) {
        Bytes bytes;
        const auto add = [&](std::span<const std::uint8_t> piece) {
            bytes.insert(bytes.end(), piece.begin(), piece.end());
        };
        if (type.token == 0x38) {
            add(in_.take(4));
        } else if (type.token == 0x22 || type.token == 0x23 || type.token == 0x63) {
            const std::uint8_t pointer = in_.u8();
            if (pointer == 0) {
                return "NULL";
            }
            in_.take(pointer + 8U);
            add(in_.take(in_.u32()));
        } else if (type.token >= 0xA5 && type.largest == 0xFFFF) {
            const std::uint64_t length = in_.u64();
            if (length == ~0ULL) {
                return "NULL";
            }
            while (const std::uint32_t chunk = in_.u32()) {
                add(in_.take(chunk));
            }
            if (bytes.size() != length) {
                throw ProtocolError("chunks of another length");
            }
        } else {
            const bool wide = type.token >= 0xA5;
            const unsigned length = wide ? in_.u16() : in_.u8();
            if (length == (wide ? 0xFFFFU : 0U)) {
                return "NULL";
            }
            if (length > type.largest) {
                throw ProtocolError("a value longer than its type");
            }
            add(in_.take(length));
        }
        return shown(type, bytes);
    }

    static std::string shown(const Type& type, const Bytes& bytes) {
        ByteReader in(bytes);
        switch (type.token) {
        case 0x26:
        case 0x68:
        case 0x38: {
            std::int64_t number = 0;
            for (std::size_t i = 0; i < bytes.size(); ++i) {
                number |= static_cast<std::int64_t>(static_cast<std::uint64_t>(bytes[i]) << (8 * i));
            }
            const int unused = bytes.size() == 1 ? 0 : 64 - 8 * static_cast<int>(bytes.size());
            return std::to_string(number << unused >> unused);
        }
        case 0xE7:
        case 0xEF:
        case 0x63:
            return in.ucs2(bytes.size() / 2);
        case 0xA7:
        case 0xAF:
        case 0x23:
            return {bytes.begin(), bytes.end()};
        default:
            return hex(bytes);
        }
    }

    ByteReader in_;
    bool wide_;
    std::vector<Type> types_;
};

} // namespace

std::vector<std::vector<std::string>> heardMessages(const Bytes& wire, std::uint32_t version) {
    std::vector<std::vector<std::string>> all;
    Bytes body;
    for (std::size_t place = 0; place < wire.size();) {
        const std::size_t length = static_cast<std::size_t>(wire.at(place + 2)) << 8 | wire.at(place + 3);
        const auto begin = wire.begin() + static_cast<std::ptrdiff_t>(place);
        body.insert(body.end(), begin + kHeaderBytes, begin + static_cast<std::ptrdiff_t>(length));
        if (wire.at(place + 1) & 1) {
            all.push_back(Reader(body, version >= 0x72000000).lines());
            body.clear();
        }
        place += length;
    }
    return all;
}

} // namespace peer
