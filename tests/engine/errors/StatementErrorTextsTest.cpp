// Number, reach and words of the errors that a statement has by itself, and where the arguments stand in them.

#include "engine/errors/BindErrors.h"
#include "engine/errors/ErrorTexts.h"
#include "engine/errors/FunctionErrors.h"
#include "engine/errors/TextErrors.h"
#include "engine/errors/ValueErrors.h"

namespace engine {
namespace {

TEST(ErrorTexts, OfValues) {
    expectTexts({
        {errors::valueOverflow("Target", "Value"), 220, kBatch,
         "Arithmetic overflow error for data type Target, value = Value."},
        {errors::floatOverflow("Target", "Value"), 232, kBatch,
         "Arithmetic overflow error for type Target, value = Value."},
        {errors::moneyOfText(), 235, kBatch,
         "Cannot convert a char value to money. The char value has incorrect syntax."},
        {errors::dateConversion(), 241, kBatch,
         "Conversion failed when converting date and/or time from character string."},
        {errors::dateOutOfRange(), 242, kBatch,
         "The conversion of a varchar data type to a datetime data type resulted in an out-of-range value."},
        {errors::textOverflowsSmallInt("Source", "Value", "Column"), 244, kBatch,
         "The conversion of the Source value 'Value' overflowed an Column column. Use a larger integer "
         "column."},
        {errors::intConversion("Type", "Value", "Target"), 245, kBatch,
         "Conversion failed when converting the Type value 'Value' to data type Target."},
        {errors::textOverflowsInt("Source", "Value"), 248, kBatch,
         "The conversion of the Source value 'Value' overflowed an int column."},
        {errors::implicitConversion("Source", "Target"), 257, kBatch,
         "Implicit conversion from data type Source to Target is not allowed. Use the CONVERT function to run this "
         "query."},
        {errors::dateStyleOfText(7, "Source"), 281, kBatch,
         "7 is not a valid style number when converting from Source to a character string."},
        {errors::conversionError("Source", "Target"), 8114, kBatch, "Error converting data type Source to Target."},
        {errors::conversionOverflow("Source", "Target"), 8115, kBatch,
         "Arithmetic overflow error converting Source to data type Target."},
        {errors::overflow("expression", "Target"), 8115, kStatement,
         "Arithmetic overflow error converting expression to data type Target."},
        {errors::truncated(), 8152, kStatement, "String or binary data would be truncated."},
        {errors::dateStyleFromText(7), 9809, kBatch,
         "The style 7 is not supported for conversions from varchar to datetime."},
        {errors::valueNotSupported("Value"), 40517, kBatch,
         "Keyword or statement option 'Value' is not supported in this version of SQL Server."},
    });
}

TEST(ErrorTexts, OfTheText) {
    expectTexts({
        {errors::syntaxNear("Token", 5), 102, kBatch, "Incorrect syntax near 'Token'.", 5},
        {errors::identifierTooLong("Start", 5), 103, kBatch,
         "The identifier that starts with 'Start' is too long. Maximum length is 128.", 5},
        {errors::unclosedQuote("Rest", 5), 105, kBatch, "Unclosed quotation mark after the character string 'Rest'.",
         5},
        {errors::unclosedComment(5), 113, kBatch, "Missing end comment mark '*/'.", 5},
        {errors::tooManyPrefixes("Name", 5), 117, kBatch,
         "The object name 'Name' contains more than the maximum number of prefixes. The maximum is 3.", 5},
        {errors::sizeBeyondAnyType("Size", "Kind", "Name", 5), 131, kBatch,
         "The size (Size) given to the Kind 'Name' exceeds the maximum allowed for any data type (8000).", 5},
        {errors::undeclaredVariable("Variable", 5), 137, kBatch, "Must declare the scalar variable \"Variable\".", 5},
        {errors::syntaxNearKeyword("Keyword", 5), 156, kBatch, "Incorrect syntax near the keyword 'Keyword'.", 5},
        {errors::floatOutOfRange("Number", 5), 168, kBatch,
         "The floating point value 'Number' is out of the range of computer representation (8 bytes).", 5},
        {errors::scaleOutOfRange("Scale", "Name", 7, 5), 183, kBatch,
         "The scale (Scale) for column 'Name' must be within the range 0 to 7.", 5},
        {errors::nestedTooDeep(), 191, kBatch,
         "Some part of your SQL statement is nested too deeply. Rewrite the query or break it up into "
         "smaller queries."},
        {errors::undefinedType("Type", 5), 243, kBatch, "Type Type is not a defined system type.", 5},
        {errors::invalidCollation("Collation", 5), 448, kBatch, "Invalid collation 'Collation'.", 5},
        {errors::invalidLength("Length", 5), 1001, kBatch,
         "Line 1: Length or precision specification Length is invalid.", 5},
        {errors::emptyName(5), 1038, kBatch,
         "An object or column name is missing or empty. For SELECT INTO statements, verify each column "
         "has a name. For other statements, look for empty alias names. Aliases defined as \"\" or [] are "
         "not allowed. Change the alias to a valid name.",
         5},
        {errors::typeMissing(7, "Type", 5), 2715, kBatch,
         "Column, parameter, or variable #7: Cannot find data type Type.", 5},
        {errors::sizeExceeded("Size", "Kind", "Name", 7, 5), 2717, kBatch,
         "The size (Size) given to the Kind 'Name' exceeds the maximum allowed (7).", 5},
        {errors::precisionExceeded(7, "Precision", 5), 2750, kBatch,
         "Column or parameter #7: Specified column precision Precision is greater than the maximum "
         "precision of 38.",
         5},
        {errors::conditionExpected("Token", 5), 4145, kBatch,
         "An expression of non-boolean type specified in a context where a condition is expected, near "
         "'Token'.",
         5},
        {errors::nullableKey("Table", 5), 8111, kBatch,
         "Cannot define PRIMARY KEY constraint on nullable column in table 'Table'.", 5},
        {errors::numberTooLong(5), 8115, kBatch,
         "Arithmetic overflow error converting expression to data type numeric.", 5},
        {errors::nullableIdentity("Column", "Table", 5), 8147, kBatch,
         "Could not create IDENTITY attribute on nullable column 'Column', table 'Table'.", 5},
        {errors::databaseOptionMissing("Option"), 15011, kStatement, "Database option 'Option' does not exist."},
        {errors::optionMissing("Option"), 15123, kStatement,
         "The configuration option 'Option' does not exist, or it may be an advanced option."},
        {errors::optionAmbiguous("Option"), 15124, kStatement, "The configuration option 'Option' is not unique."},
        {errors::optionValue(7, "Option"), 15129, kStatement,
         "'7' is not a valid value for configuration option 'Option'."},
        {errors::databaseOptionAmbiguous("Option"), 15242, kStatement, "Database option 'Option' is not unique."},
    });
}

TEST(ErrorTexts, OfFunctions) {
    expectTexts({
        {errors::unknownDatePart("Part", "Function"), 155, kBatch, "'Part' is not a recognized Function option."},
        {errors::moreThanOneValue(), 512, kStatement,
         "Subquery returned more than 1 value. This is not permitted when the subquery follows =, !=, <, "
         "<= , >, >= or when the subquery is used as an expression."},
        {errors::dateAdditionOverflow(), 517, kBatch, "Adding a value to a 'datetime' column caused an overflow."},
        {errors::dateDifferenceOverflow(), 535, kStatement,
         "The datediff function resulted in an overflow. The number of dateparts separating two date/time "
         "instances is too large. Try to use datediff with a less precise datepart."},
        {errors::invalidLengthOfRight(), 536, kBatch, "Invalid length parameter passed to the RIGHT function."},
        {errors::invalidLengthOfPart(), 537, kBatch,
         "Invalid length parameter passed to the LEFT or SUBSTRING function."},
        {errors::divideByZero(), 8134, kStatement, "Divide by zero error encountered."},
    });
}

TEST(ErrorTexts, OfNamesAndTypes) {
    expectTexts({
        {errors::orderNotDistinct(), 145, kBatch,
         "ORDER BY items must appear in the select list if SELECT DISTINCT is specified."},
        {errors::invalidEscape("Escape"), 506, kBatch,
         "The invalid escape character \"Escape\" was specified in a LIKE predicate."},
        {errors::orderOfSubquery(), 1033, kBatch,
         "The ORDER BY clause is invalid in views, inline functions, derived tables, subqueries, and common table "
         "expressions, unless TOP or FOR XML is also specified."},
        {errors::coalesceOfNulls(), 4127, kBatch,
         "At least one of the arguments to COALESCE must be an expression that is not the NULL constant."},
        {errors::nullIfOfNull(), 4151, kBatch,
         "The type of the first argument to NULLIF cannot be the NULL constant because the type of the first argument "
         "has to be known."},
        {errors::columnWithoutName(1, "Table"), 8155, kBatch, "No column name was specified for column 1 of 'Table'."},
        {errors::columnNamedTwice("Column", "Table"), 8156, kBatch,
         "The column 'Column' was specified multiple times for 'Table'."},
        {errors::orderNotSelected(), 104, kBatch,
         "ORDER BY items must appear in the select list if the statement contains a UNION, INTERSECT or "
         "EXCEPT operator."},
        {errors::prefixUnknown("Prefix"), 107, kBatch,
         "The column prefix 'Prefix' does not match with a table name or alias name used in the query."},
        {errors::orderOutOfRange(7), 108, kBatch,
         "The ORDER BY position number 7 is out of range of the number of items in the select list."},
        {errors::moreColumnsThanValues(), 109, kBatch,
         "There are more columns in the INSERT statement than values specified in the VALUES clause. The "
         "number of values in the VALUES clause must match the number of columns specified in the INSERT "
         "statement."},
        {errors::fewerColumnsThanValues(), 110, kBatch,
         "There are fewer columns in the INSERT statement than values specified in the VALUES clause. The "
         "number of values in the VALUES clause must match the number of columns specified in the INSERT "
         "statement."},
        {errors::oneColumnOnly(), 116, kBatch,
         "Only one expression can be specified in the select list when the subquery is not introduced "
         "with EXISTS."},
        {errors::moreColumnsThanSelected(), 120, kBatch,
         "The select list for the INSERT statement contains fewer items than the insert list. The number "
         "of SELECT values must match the number of INSERT columns."},
        {errors::fewerColumnsThanSelected(), 121, kBatch,
         "The select list for the INSERT statement contains more items than the insert list. The number "
         "of SELECT values must match the number of INSERT columns."},
        {errors::aggregateOfAggregate(), 130, kBatch,
         "Cannot perform an aggregate function on an expression containing an aggregate or a subquery."},
        {errors::groupedByAggregate(), 144, kBatch,
         "Cannot use an aggregate or a subquery in an expression used for the group by list of a GROUP BY clause."},
        {errors::aggregateMisplaced(), 147, kBatch,
         "An aggregate may not appear in the WHERE clause unless it is in a subquery contained in a "
         "HAVING clause or a select list, and the column being aggregated is an outer reference."},
        {errors::groupedByConstant(), 164, kBatch,
         "Each GROUP BY expression must contain at least one column that is not an outer reference."},
        {errors::orderedTwice(), 169, kBatch,
         "A column has been specified more than once in the order by list. Columns in the order by list must be "
         "unique."},
        {errors::argumentCount("Function", 7), 174, kBatch, "The Function function requires 7 argument(s)."},
        {errors::unknownFunction("Name"), 195, kBatch, "'Name' is not a recognized built-in function name."},
        {errors::unionCountMismatch(), 205, kBatch,
         "All queries combined using a UNION, INTERSECT or EXCEPT operator must have an equal number of "
         "expressions in their target lists."},
        {errors::invalidColumn("Column"), 207, kBatch, "Invalid column name 'Column'."},
        {errors::ambiguousColumn("Column"), 209, kBatch, "Ambiguous column name 'Column'."},
        {errors::columnCountMismatch(), 213, kBatch,
         "Column name or number of supplied values does not match table definition."},
        {errors::systemTable("Table"), 259, kBatch, "Ad hoc updates to system catalogs are not allowed: 'Table'."},
        {errors::noTableToSelectFrom(), 263, kBatch, "Must specify table to select from."},
        {errors::columnTwice("Column"), 264, kBatch,
         "The column name 'Column' is specified more than once in the SET clause or column list of an "
         "INSERT. A column cannot be assigned more than one value in the same clause. Modify the clause "
         "to make sure that a column is updated only once. If this statement updates or inserts columns "
         "into a view, column aliasing can conceal the duplication in your code."},
        {errors::incompatibleTypes("Left", "Right", "Operation"), 402, kBatch,
         "The data types Left and Right are incompatible in the Operation operator."},
        {errors::orderedByConstant(7), 408, kBatch,
         "A constant expression was encountered in the ORDER BY list, position 7."},
        {errors::explicitIdentity("Table"), 544, kStatement,
         "Cannot insert explicit value for identity column in table 'Table' when IDENTITY_INSERT is set "
         "to OFF."},
        {errors::identityValueMissing("Table"), 545, kStatement,
         "Explicit value must be specified for identity column in table 'Table' either when "
         "IDENTITY_INSERT is set to ON or when a replication user is inserting into a NOT FOR REPLICATION "
         "identity column."},
        {errors::sameAlias("Alias"), 1011, kBatch,
         "The correlation name 'Alias' is specified multiple times in a FROM clause."},
        {errors::aliasOfTable("Alias", "Table"), 1012, kBatch,
         "The correlation name 'Alias' has the same exposed name as table 'Table'."},
        {errors::sameExposedName("First", "Second"), 1013, kBatch,
         "The objects \"First\" and \"Second\" in the FROM clause have the same exposed names. Use "
         "correlation names to distinguish them."},
        {errors::invalidParameter(7, "Function", 5), 1023, kBatch, "Invalid parameter 7 specified for Function.", 5},
        {errors::unboundIdentifier("Identifier"), 4104, kBatch,
         "The multi-part identifier \"Identifier\" could not be bound."},
        {errors::identityWithoutList("Table"), 8101, kBatch,
         "An explicit value for the identity column in table 'Table' can only be specified when a column list is used "
         "and IDENTITY_INSERT is ON."},
        {errors::updateIdentity("Column"), 8102, kBatch, "Cannot update identity column 'Column'."},
        {errors::argumentType("Type", 7, "Function"), 8116, kBatch,
         "Argument data type Type is invalid for argument 7 of Function function."},
        {errors::aggregateOfText("Type", "Function"), 8117, kBatch,
         "Operand data type Type is invalid for Function operator."},
        {errors::notGrouped("Column"), 8120, kBatch,
         "Column 'Column' is invalid in the select list because it is not contained in either an "
         "aggregate function or the GROUP BY clause."},
        {errors::notGroupedInHaving("Column"), 8121, kBatch,
         "Column 'Column' is invalid in the HAVING clause because it is not contained in either an "
         "aggregate function or the GROUP BY clause."},
        {errors::severalColumnsAggregated(), 8124, kBatch,
         "Multiple columns are specified in an aggregated expression containing an outer reference. If an "
         "expression being aggregated contains an outer reference, then that outer reference must be the "
         "only column referenced in the expression."},
        {errors::notGroupedInOrder("Column"), 8127, kBatch,
         "Column \"Column\" is invalid in the ORDER BY clause because it is not contained in either an "
         "aggregate function or the GROUP BY clause."},
        {errors::caseOfNulls(), 8133, kBatch,
         "At least one of the result expressions in a CASE specification must be an expression other than the NULL "
         "constant."},
        {errors::ambiguousTable("Table"), 8154, kBatch, "The table 'Table' is ambiguous."},
        {errors::valuesCountMismatch(), 10709, kBatch,
         "The number of columns for each row in a table value constructor must be the same."},
        {errors::tooManyRows(), 10738, kBatch,
         "The number of row value expressions in the INSERT statement exceeds the maximum allowed number "
         "of 1000 row values."},
    });
}

} // namespace
} // namespace engine
