#include "engine/errors/BindErrors.h"

namespace engine::errors {

namespace {

using Reach = Error::Reach;

std::string inQuotes(const std::string& text) {
    return "'" + text + "'";
}

} // namespace

Error columnCountMismatch() {
    return {213, "Column name or number of supplied values does not match table definition.", Reach::Batch};
}

Error fewerColumnsThanValues() {
    return {110,
            "There are fewer columns in the INSERT statement than values specified in the VALUES clause. The number of "
            "values in the VALUES clause must match the number of columns specified in the INSERT statement.",
            Reach::Batch};
}

Error moreColumnsThanValues() {
    return {109,
            "There are more columns in the INSERT statement than values specified in the VALUES clause. The number of "
            "values in the VALUES clause must match the number of columns specified in the INSERT statement.",
            Reach::Batch};
}

Error fewerColumnsThanSelected() {
    return {121,
            "The select list for the INSERT statement contains more items than the insert list. The number of SELECT "
            "values must match the number of INSERT columns.",
            Reach::Batch};
}

Error moreColumnsThanSelected() {
    return {120,
            "The select list for the INSERT statement contains fewer items than the insert list. The number of SELECT "
            "values must match the number of INSERT columns.",
            Reach::Batch};
}

Error valuesCountMismatch() {
    return {10709, "The number of columns for each row in a table value constructor must be the same.", Reach::Batch};
}

Error tooManyRows() {
    return {
        10738,
        "The number of row value expressions in the INSERT statement exceeds the maximum allowed number of 1000 row "
        "values.",
        Reach::Batch};
}

Error unionCountMismatch() {
    return {205,
            "All queries combined using a UNION, INTERSECT or EXCEPT operator must have an equal number of expressions "
            "in their target lists.",
            Reach::Batch};
}

Error oneColumnOnly() {
    return {116,
            "Only one expression can be specified in the select list when the subquery is not introduced with EXISTS.",
            Reach::Batch};
}

Error moreThanOneValue() {
    return {512, "Subquery returned more than 1 value. This is not permitted when the subquery follows =, !=, <, <= , "
                 ">, >= or when the subquery is used as an expression."};
}

Error unknownFunction(const std::string& name) {
    return {195, inQuotes(name) + " is not a recognized built-in function name.", Reach::Batch};
}

Error argumentCount(const std::string& function, int wanted) {
    return {174, "The " + function + " function requires " + std::to_string(wanted) + " argument(s).", Reach::Batch};
}

Error unknownDatePart(const std::string& part, const std::string& function) {
    return {155, inQuotes(part) + " is not a recognized " + function + " option.", Reach::Batch};
}

Error incompatibleTypes(const std::string& left, const std::string& right, const std::string& operation) {
    return {402, "The data types " + left + " and " + right + " are incompatible in the " + operation + " operator.",
            Reach::Batch};
}

Error aggregateMisplaced() {
    return {147,
            "An aggregate may not appear in the WHERE clause unless it is in a subquery contained in a HAVING clause "
            "or a select list, and the column being aggregated is an outer reference.",
            Reach::Batch};
}

Error notGrouped(const std::string& column) {
    return {8120,
            "Column " + inQuotes(column) +
                " is invalid in the select list because it is not contained in either an aggregate function or the "
                "GROUP BY clause.",
            Reach::Batch};
}

Error notGroupedInHaving(const std::string& column) {
    return {8121,
            "Column " + inQuotes(column) +
                " is invalid in the HAVING clause because it is not contained in either an aggregate function or the "
                "GROUP BY clause.",
            Reach::Batch};
}

Error notGroupedInOrder(const std::string& column) {
    return {8127,
            "Column \"" + column +
                "\" is invalid in the ORDER BY clause because it is not contained in either an aggregate function or "
                "the GROUP BY clause.",
            Reach::Batch};
}

Error groupedByConstant() {
    return {164, "Each GROUP BY expression must contain at least one column that is not an outer reference.",
            Reach::Batch};
}

Error aggregateOfAggregate() {
    return {130, "Cannot perform an aggregate function on an expression containing an aggregate or a subquery.",
            Reach::Batch};
}

Error severalColumnsAggregated() {
    return {8124,
            "Multiple columns are specified in an aggregated expression containing an outer reference. If an "
            "expression being aggregated contains an outer reference, then that outer reference must be the only "
            "column referenced in the expression.",
            Reach::Batch};
}

Error argumentType(const std::string& type, int place, const std::string& function) {
    return {8116,
            "Argument data type " + type + " is invalid for argument " + std::to_string(place) + " of " + function +
                " function.",
            Reach::Batch};
}

Error duplicateInNewKey(const std::string& table, const std::string& key) {
    return {1505, "The CREATE UNIQUE INDEX statement terminated because a duplicate key was found for the object name "
                  "'dbo." +
                      table + "' and the index name " + inQuotes(key) + "."};
}

Error aggregateOfText(const std::string& type, const std::string& function) {
    return {8117, "Operand data type " + type + " is invalid for " + function + " operator.", Reach::Batch};
}

Error orderOutOfRange(int ordinal) {
    return {108,
            "The ORDER BY position number " + std::to_string(ordinal) +
                " is out of range of the number of items in the select list.",
            Reach::Batch};
}

Error columnTwice(const std::string& column) {
    return {264,
            "The column name " + inQuotes(column) +
                " is specified more than once in the SET clause or column list of an INSERT. A column cannot be "
                "assigned more than one value in the same clause. Modify the clause to make sure that a column is "
                "updated only once. If this statement updates or inserts columns into a view, column aliasing can "
                "conceal the duplication in your code.",
            Reach::Batch};
}

Error updateIdentity(const std::string& column) {
    return {8102, "Cannot update identity column " + inQuotes(column) + ".", Reach::Batch};
}

Error identityValueMissing(const std::string& table) {
    return {545, "Explicit value must be specified for identity column in table " + inQuotes(table) +
                     " either when IDENTITY_INSERT is set to ON or when a replication user is inserting into a NOT FOR "
                     "REPLICATION identity column."};
}

Error divideByZero() {
    return {8134, "Divide by zero error encountered."};
}

Error noTransaction(const std::string& verb) {
    return {verb == "COMMIT" ? 3902 : 3903,
            "The " + verb + " TRANSACTION request has no corresponding BEGIN TRANSACTION."};
}

Error storageFull(const std::string& database) {
    return {1105, "Could not allocate space for an object in database " + inQuotes(database) +
                      " because the disk is full. Create disk space by deleting unneeded files."};
}

Error readOnlyDatabase(const std::string& database) {
    return {3906, "Failed to update database \"" + database + "\" because the database is read-only."};
}

Error storageBroken(const std::string& detail) {
    return {823, "The operating system or the storage returned an error: " + detail + ".", Reach::Batch};
}

Error missingTable(const std::string& table) {
    return {4902, "Cannot find the object \"" + table + "\" because it does not exist or you do not have permissions."};
}

Error twoPrimaryKeys(const std::string& table) {
    return {1779, "Table " + inQuotes(table) + " already has a primary key defined on it.", Reach::Batch};
}

Error keyColumnMissing(const std::string& column) {
    return {1911, "Column name " + inQuotes(column) + " does not exist in the target table or view.", Reach::Batch};
}

Error severalIdentities(const std::string& table) {
    return {2744,
            "Multiple identity columns specified for table " + inQuotes(table) +
                ". Only one identity column per table is allowed.",
            Reach::Batch};
}

Error indexExists(const std::string& table, const std::string& index) {
    return {1913, "The operation failed because an index or statistics with name " + inQuotes(index) +
                      " already exists on table " + inQuotes(table) + "."};
}

Error identityInsertBusy(const std::string& holder, const std::string& table) {
    return {8107, "IDENTITY_INSERT is already ON for table " + inQuotes(holder) +
                      ". Cannot perform SET operation for table " + inQuotes(table) + "."};
}

Error outOfMemory() {
    return {701, "There is insufficient system memory to run this query."};
}

Error internal() {
    return {8630,
            "Internal Query Processor Error: The query processor encountered an unexpected error during execution."};
}

Error systemTable(const std::string& table) {
    return {259, "Ad hoc updates to system catalogs are not allowed: " + inQuotes(table) + ".", Reach::Batch};
}

} // namespace engine::errors
