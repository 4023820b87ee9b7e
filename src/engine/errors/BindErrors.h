#pragma once

// Errors that a statement has before it runs: names, types, places of its parts.

#include "engine/errors/ErrorText.h"

namespace engine::errors {

inline constexpr ErrorText<> orderNotSelected{
    104, Reach::Batch,
    "ORDER BY items must appear in the select list if the statement contains a UNION, "
    "INTERSECT or EXCEPT operator."};
inline constexpr ErrorText<Text> prefixUnknown{
    107, Reach::Batch,
    "The column prefix '{prefix}' does not match with a table name or alias name used in the "
    "query."};
inline constexpr ErrorText<int> orderOutOfRange{
    108, Reach::Batch,
    "The ORDER BY position number {ordinal} is out of range of the number of items in the "
    "select list."};
inline constexpr ErrorText<> moreColumnsThanValues{
    109, Reach::Batch,
    "There are more columns in the INSERT statement than values specified in the VALUES "
    "clause. The number of values in the VALUES clause must match the number of columns "
    "specified in the INSERT statement."};
inline constexpr ErrorText<> fewerColumnsThanValues{
    110, Reach::Batch,
    "There are fewer columns in the INSERT statement than values specified in the VALUES "
    "clause. The number of values in the VALUES clause must match the number of columns "
    "specified in the INSERT statement."};
inline constexpr ErrorText<> oneColumnOnly{
    116, Reach::Batch,
    "Only one expression can be specified in the select list when the subquery is not "
    "introduced with EXISTS."};
inline constexpr ErrorText<> moreColumnsThanSelected{
    120, Reach::Batch,
    "The select list for the INSERT statement contains fewer items than the insert list. The "
    "number of SELECT values must match the number of INSERT columns."};
inline constexpr ErrorText<> fewerColumnsThanSelected{
    121, Reach::Batch,
    "The select list for the INSERT statement contains more items than the insert list. The "
    "number of SELECT values must match the number of INSERT columns."};
inline constexpr ErrorText<> aggregateOfAggregate{
    130, Reach::Batch,
    "Cannot perform an aggregate function on an expression containing an aggregate or a "
    "subquery."};
inline constexpr ErrorText<> groupedByAggregate{
    144, Reach::Batch,
    "Cannot use an aggregate or a subquery in an expression used for the group by list of a GROUP BY clause."};
inline constexpr ErrorText<> orderNotDistinct{
    145, Reach::Batch, "ORDER BY items must appear in the select list if SELECT DISTINCT is specified."};
inline constexpr ErrorText<> aggregateMisplaced{
    147, Reach::Batch,
    "An aggregate may not appear in the WHERE clause unless it is in a subquery contained in "
    "a HAVING clause or a select list, and the column being aggregated is an outer reference."};
inline constexpr ErrorText<> groupedByConstant{
    164, Reach::Batch,
    "Each GROUP BY expression must contain at least one column that is not an outer "
    "reference."};
inline constexpr ErrorText<> orderedTwice{
    169, Reach::Batch,
    "A column has been specified more than once in the order by list. Columns in the order by list must be unique."};
inline constexpr ErrorText<Text, int> argumentCount{174, Reach::Batch,
                                                    "The {function} function requires {wanted} argument(s)."};
inline constexpr ErrorText<Text> unknownFunction{195, Reach::Batch,
                                                 "'{name}' is not a recognized built-in function name."};
inline constexpr ErrorText<> unionCountMismatch{
    205, Reach::Batch,
    "All queries combined using a UNION, INTERSECT or EXCEPT operator must have an equal "
    "number of expressions in their target lists."};
inline constexpr ErrorText<Text> invalidColumn{207, Reach::Batch, "Invalid column name '{column}'."};
inline constexpr ErrorText<Text> ambiguousColumn{209, Reach::Batch, "Ambiguous column name '{column}'."};
inline constexpr ErrorText<> columnCountMismatch{
    213, Reach::Batch, "Column name or number of supplied values does not match table definition."};
inline constexpr ErrorText<Text> systemTable{259, Reach::Batch,
                                             "Ad hoc updates to system catalogs are not allowed: '{table}'."};
inline constexpr ErrorText<> noTableToSelectFrom{263, Reach::Batch, "Must specify table to select from."};
inline constexpr ErrorText<Text> columnTwice{
    264, Reach::Batch,
    "The column name '{column}' is specified more than once in the SET clause or column list "
    "of an INSERT. A column cannot be assigned more than one value in the same clause. "
    "Modify the clause to make sure that a column is updated only once. If this statement "
    "updates or inserts columns into a view, column aliasing can conceal the duplication in "
    "your code."};
inline constexpr ErrorText<Text, Text, Text> incompatibleTypes{
    402, Reach::Batch, "The data types {left} and {right} are incompatible in the {operation} operator."};
inline constexpr ErrorText<int> orderedByConstant{
    408, Reach::Batch, "A constant expression was encountered in the ORDER BY list, position {place}."};
inline constexpr ErrorText<Text> invalidEscape{
    506, Reach::Batch, "The invalid escape character \"{escape}\" was specified in a LIKE predicate."};
inline constexpr ErrorText<Text> explicitIdentity{
    544, Reach::Statement,
    "Cannot insert explicit value for identity column in table '{table}' when "
    "IDENTITY_INSERT is set to OFF."};
inline constexpr ErrorText<Text> identityValueMissing{
    545, Reach::Statement,
    "Explicit value must be specified for identity column in table '{table}' either when "
    "IDENTITY_INSERT is set to ON or when a replication user is inserting into a NOT FOR "
    "REPLICATION identity column."};
inline constexpr ErrorText<Text> sameAlias{
    1011, Reach::Batch, "The correlation name '{alias}' is specified multiple times in a FROM clause."};
inline constexpr ErrorText<Text, Text> aliasOfTable{
    1012, Reach::Batch, "The correlation name '{alias}' has the same exposed name as table '{table}'."};
inline constexpr ErrorText<Text, Text> sameExposedName{
    1013, Reach::Batch,
    "The objects \"{first}\" and \"{second}\" in the FROM clause have the same exposed "
    "names. Use correlation names to distinguish them."};
inline constexpr PlacedErrorText<int, Text> invalidParameter{1023, Reach::Batch,
                                                             "Invalid parameter {place} specified for {function}."};
inline constexpr ErrorText<> orderOfSubquery{
    1033, Reach::Batch,
    "The ORDER BY clause is invalid in views, inline functions, derived tables, subqueries, and "
    "common table expressions, unless TOP or FOR XML is also specified."};
inline constexpr ErrorText<Text> unboundIdentifier{4104, Reach::Batch,
                                                   "The multi-part identifier \"{identifier}\" could not be bound."};
inline constexpr ErrorText<> coalesceOfNulls{
    4127, Reach::Batch,
    "At least one of the arguments to COALESCE must be an expression that is not the NULL "
    "constant."};
inline constexpr ErrorText<> nullIfOfNull{
    4151, Reach::Batch,
    "The type of the first argument to NULLIF cannot be the NULL constant because the type of "
    "the first argument has to be known."};
inline constexpr ErrorText<Text> identityWithoutList{
    8101, Reach::Batch,
    "An explicit value for the identity column in table '{table}' can only be specified when a column list is used and "
    "IDENTITY_INSERT is ON."};
inline constexpr ErrorText<Text> updateIdentity{8102, Reach::Batch, "Cannot update identity column '{column}'."};
inline constexpr ErrorText<Text, int, Text> argumentType{
    8116, Reach::Batch, "Argument data type {type} is invalid for argument {place} of {function} function."};
inline constexpr ErrorText<Text, Text> aggregateOfText{8117, Reach::Batch,
                                                       "Operand data type {type} is invalid for {function} operator."};
inline constexpr ErrorText<Text> notGrouped{
    8120, Reach::Batch,
    "Column '{column}' is invalid in the select list because it is not contained in either "
    "an aggregate function or the GROUP BY clause."};
inline constexpr ErrorText<Text> notGroupedInHaving{
    8121, Reach::Batch,
    "Column '{column}' is invalid in the HAVING clause because it is not contained in either "
    "an aggregate function or the GROUP BY clause."};
inline constexpr ErrorText<> severalColumnsAggregated{
    8124, Reach::Batch,
    "Multiple columns are specified in an aggregated expression containing an outer "
    "reference. If an expression being aggregated contains an outer reference, then that "
    "outer reference must be the only column referenced in the expression."};
inline constexpr ErrorText<Text> notGroupedInOrder{
    8127, Reach::Batch,
    "Column \"{column}\" is invalid in the ORDER BY clause because it is not contained in "
    "either an aggregate function or the GROUP BY clause."};
inline constexpr ErrorText<> caseOfNulls{
    8133, Reach::Batch,
    "At least one of the result expressions in a CASE specification must be an expression other than the NULL "
    "constant."};
inline constexpr ErrorText<Text> ambiguousTable{8154, Reach::Batch, "The table '{table}' is ambiguous."};
inline constexpr ErrorText<int, Text> columnWithoutName{
    8155, Reach::Batch, "No column name was specified for column {place} of '{table}'."};
inline constexpr ErrorText<Text, Text> columnNamedTwice{
    8156, Reach::Batch, "The column '{column}' was specified multiple times for '{table}'."};
inline constexpr ErrorText<> valuesCountMismatch{
    10709, Reach::Batch, "The number of columns for each row in a table value constructor must be the same."};
inline constexpr ErrorText<> tooManyRows{
    10738, Reach::Batch,
    "The number of row value expressions in the INSERT statement exceeds the maximum allowed "
    "number of 1000 row values."};

} // namespace engine::errors
