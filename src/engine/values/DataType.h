#pragma once

#include <string>

namespace engine {

constexpr int kWidestDecimal = 38;         ///< digits
constexpr int kLongestText = 8000;         ///< characters of char and varchar, bytes of varbinary
constexpr int kLongestNationalText = 4000; ///< characters of nchar and nvarchar
constexpr int kSystemNameLength = 128;     ///< characters of sysname
constexpr int kMoneyLength = 8;            ///< bytes of money

/// A type of the dialect. Lengths are in characters, -1 stands for `max`.
struct DataType {
    enum class Kind {
        Unknown, ///< the type of a bare NULL
        Bit,
        TinyInt,
        SmallInt,
        Int,
        BigInt,
        Decimal, ///< also numeric, and money as (19,4) with its length
        Real,
        Float,
        DateTime,
        Char,
        VarChar, ///< also text (-1)
        NChar,
        NVarChar, ///< also sysname (128) and ntext (-1)
        VarBinary
    };

    Kind kind = Kind::Unknown;
    int length = 0;    ///< texts and binaries; tells money from a decimal
    int precision = 0; ///< decimals
    int scale = 0;     ///< decimals

    bool operator==(const DataType&) const = default;

    bool isText() const { return kind >= Kind::Char && kind <= Kind::NVarChar; }
    bool isNational() const { return kind == Kind::NChar || kind == Kind::NVarChar; }
    bool isMoney() const { return kind == Kind::Decimal && length == kMoneyLength; }
    bool isInteger() const { return kind >= Kind::Bit && kind <= Kind::BigInt; }
    bool isNumber() const { return kind >= Kind::Bit && kind <= Kind::Float; }
};

/// Any decimal as it is: no scale rounds it.
inline constexpr DataType kAnyDecimal{DataType::Kind::Decimal, 0, 2 * kWidestDecimal, kWidestDecimal};

/// The type as a script would write it: `nvarchar(255)`, `decimal(18,2)`.
std::string toText(const DataType& type);

} // namespace engine
