#include "engine/errors/TextErrors.h"
#include "engine/text/ParserGrammar.h"

#include <array>
#include <limits>

namespace engine {

namespace {

using Kind = DataType::Kind;

/// What may stand in brackets behind a type.
enum class Size { Nothing, Length, LengthOrMax, Precision, Mantissa };

struct TypeRow {
    std::string_view name;
    DataType type;
    Size size = Size::Nothing;
    int largest = 0; ///< the largest length
};

/// A type that isn't here is refused: those that keep other values than one of these, as date and smalldatetime, too.
constexpr auto kTypes = std::to_array<TypeRow>({{"bigint", {Kind::BigInt}},
                                                {"bit", {Kind::Bit}},
                                                {"char", {Kind::Char}, Size::Length, kLongestText},
                                                {"character", {Kind::Char}, Size::Length, kLongestText},
                                                {"datetime", {Kind::DateTime}},
                                                {"dec", {Kind::Decimal, 0, 18, 0}, Size::Precision},
                                                {"decimal", {Kind::Decimal, 0, 18, 0}, Size::Precision},
                                                {"float", {Kind::Float}, Size::Mantissa},
                                                {"image", {Kind::VarBinary, -1}},
                                                {"int", {Kind::Int}},
                                                {"integer", {Kind::Int}},
                                                {"money", {Kind::Decimal, kMoneyLength, 19, 4}},
                                                {"nchar", {Kind::NChar}, Size::Length, kLongestNationalText},
                                                {"ntext", {Kind::NVarChar, -1}},
                                                {"numeric", {Kind::Decimal, 0, 18, 0}, Size::Precision},
                                                {"nvarchar", {Kind::NVarChar}, Size::LengthOrMax, kLongestNationalText},
                                                {"real", {Kind::Real}},
                                                {"smallint", {Kind::SmallInt}},
                                                {"sysname", {Kind::NVarChar, kSystemNameLength}},
                                                {"text", {Kind::VarChar, -1}},
                                                {"tinyint", {Kind::TinyInt}},
                                                {"varbinary", {Kind::VarBinary}, Size::LengthOrMax, kLongestText},
                                                {"varchar", {Kind::VarChar}, Size::LengthOrMax, kLongestText}});

constexpr int kRealMantissa = 24;
constexpr int kFloatMantissa = 53;
constexpr int kColumnLength = 1;
constexpr int kConversionLength = 30;

const TypeRow* typeNamed(std::string_view name) {
    for (const TypeRow& row : kTypes) {
        if (sameWord(row.name, name)) {
            return &row;
        }
    }
    return nullptr;
}

} // namespace

DataType Grammar::columnType(const std::string& column, int ordinal) {
    return type({"column", column, ordinal, kColumnLength});
}

DataType Grammar::conversionType() {
    return type({"type", "", 0, kConversionLength});
}

DataType Grammar::type(const TypeUse& use) {
    const Token& token = now();
    const std::string name = expectName();
    const TypeRow* row = typeNamed(name);
    if (row == nullptr && use.ordinal > 0) {
        throw errors::typeMissing(use.ordinal, name, token.position);
    }
    if (row == nullptr) {
        throw errors::undefinedType(name, token.position);
    }
    DataType type = row->type;
    const bool bracketed = row->size != Size::Nothing && consumeIf("(");
    switch (row->size) {
    case Size::Nothing:
        break;
    case Size::Length:
    case Size::LengthOrMax:
        type.length = use.defaultLength;
        if (bracketed && row->size == Size::LengthOrMax && consumeIfWord("max")) {
            type.length = -1;
        } else if (bracketed) {
            type.length = length({use.kind, use.name.empty() ? name : use.name, use.ordinal, 0}, row->largest);
        }
        break;
    case Size::Precision:
        if (bracketed) {
            precision(type, use);
        }
        break;
    case Size::Mantissa:
        if (bracketed && size(kFloatMantissa) <= kRealMantissa) {
            type.kind = Kind::Real;
        }
        break;
    }
    if (bracketed) {
        expect(")");
    }
    return type;
}

/// A positive number of at most `largest`.
int Grammar::size(int largest) {
    const Token& token = now();
    if (!token.isNumber()) {
        refuse();
    }
    const long long number = expectInteger();
    if (number < 1 || number > largest) {
        throw errors::invalidLength(valueOf(token), token.position);
    }
    return static_cast<int>(number);
}

int Grammar::length(const TypeUse& use, int largest) {
    const Token& token = now();
    const int length = size(std::numeric_limits<int>::max());
    if (length > kLongestText) {
        throw errors::sizeBeyondAnyType(valueOf(token), use.kind, use.name, token.position);
    }
    if (length > largest) {
        throw errors::sizeExceeded(valueOf(token), use.kind, use.name, largest, token.position);
    }
    return length;
}

void Grammar::precision(DataType& type, const TypeUse& use) {
    const Token& token = now();
    type.precision = size(std::numeric_limits<int>::max());
    if (type.precision > kWidestDecimal) {
        throw errors::precisionExceeded(use.ordinal, valueOf(token), token.position);
    }
    if (!consumeIf(",")) {
        return;
    }
    const Token& scale = now();
    if (!scale.isNumber()) {
        refuse();
    }
    const long long digits = expectInteger();
    if (digits > type.precision) {
        throw errors::scaleOutOfRange(valueOf(scale), use.name, type.precision, scale.position);
    }
    type.scale = static_cast<int>(digits);
}

} // namespace engine
