#include "engine/values/DataType.h"

#include <array>
#include <string_view>

namespace engine {

namespace {

/// In the order of DataType::Kind.
constexpr std::array<std::string_view, 15> kNames{"NULL",   "bit",     "tinyint", "smallint", "int",
                                                  "bigint", "decimal", "real",    "float",    "datetime",
                                                  "char",   "varchar", "nchar",   "nvarchar", "varbinary"};

} // namespace

std::string toText(const DataType& type) {
    if (type.isMoney()) {
        return "money";
    }
    std::string text(kNames[static_cast<std::size_t>(type.kind)]);
    if (type.kind == DataType::Kind::Decimal) {
        return text + "(" + std::to_string(type.precision) + "," + std::to_string(type.scale) + ")";
    }
    if (type.isText() || type.kind == DataType::Kind::VarBinary) {
        return text + "(" + (type.length < 0 ? "max" : std::to_string(type.length)) + ")";
    }
    return text;
}

} // namespace engine
