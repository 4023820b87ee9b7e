#include "engine/values/DataType.h"

#include <string_view>

namespace engine {

namespace {

std::string_view nameOf(DataType::Kind kind) {
    using Kind = DataType::Kind;
    switch (kind) {
    case Kind::Unknown:
        return "NULL";
    case Kind::Bit:
        return "bit";
    case Kind::TinyInt:
        return "tinyint";
    case Kind::SmallInt:
        return "smallint";
    case Kind::Int:
        return "int";
    case Kind::BigInt:
        return "bigint";
    case Kind::Decimal:
        return "decimal";
    case Kind::Real:
        return "real";
    case Kind::Float:
        return "float";
    case Kind::DateTime:
        return "datetime";
    case Kind::Char:
        return "char";
    case Kind::VarChar:
        return "varchar";
    case Kind::NChar:
        return "nchar";
    case Kind::NVarChar:
        return "nvarchar";
    case Kind::VarBinary:
        return "varbinary";
    }
    return "";
}

} // namespace

std::string toText(const DataType& type) {
    if (type.isMoney()) {
        return "money";
    }
    std::string text(nameOf(type.kind));
    if (type.kind == DataType::Kind::Decimal) {
        return text + "(" + std::to_string(type.precision) + "," + std::to_string(type.scale) + ")";
    }
    if (type.isText() || type.kind == DataType::Kind::VarBinary) {
        return text + "(" + (type.length < 0 ? "max" : std::to_string(type.length)) + ")";
    }
    return text;
}

} // namespace engine
