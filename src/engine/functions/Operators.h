#pragma once

// What the binder and the translator call in the storage for operators and conversions of the dialect.

#include "engine/functions/Functions.h"

#include <span>

namespace engine {

namespace operators {
constexpr const char* kBigInt = "tsql_bigint";   ///< a sum or product of bigints, refused outside their range
constexpr const char* kConvert = "tsql_convert"; ///< value, its type, the wanted type, style or -1, 1 to assign
/// Arithmetic of decimals: left, right, operator, type of the result, 1 where its digits may go beyond those kept.
constexpr const char* kDecimal = "tsql_decimal";
constexpr const char* kDecimalSum = "tsql_sum";             ///< an aggregate: the sum of decimals, exact
constexpr const char* kDivide = "tsql_divide";              ///< dividend, divisor, 1 where integers stay integers
constexpr const char* kFloat = "tsql_float";                ///< a sum or product of floats, refused where infinite
constexpr const char* kLikeNational = "tsql_like_national"; ///< of national texts, whose last blanks count
constexpr const char* kLike = "tsql_like";                  ///< text, pattern, perhaps the escape character
constexpr const char* kLiteral = "tsql_literal";            ///< its argument, which the storage takes for no constant
constexpr const char* kModulo = "tsql_modulo";              ///< dividend, divisor, both integers
constexpr const char* kTooManyRows = "tsql_too_many_rows";  ///< error 512
} // namespace operators

struct OperatorRow {
    const char* name;
    int arguments;
    FunctionBody body;
};

/// All but kDecimalSum, kLike and kLiteral, which the storage calls without this layer.
std::span<const OperatorRow> operatorRows();

} // namespace engine
