#include "engine/errors/Error.h"

namespace engine::errors {

namespace {

using Reach = Error::Reach;

std::string quoted(const std::string& text) {
    return "'" + text + "'";
}

} // namespace

Error syntaxNear(const std::string& token, int position) {
    return {102, "Incorrect syntax near " + quoted(token) + ".", Reach::Batch, position};
}

Error identifierTooLong(const std::string& start, int position) {
    return {103, "The identifier that starts with " + quoted(start) + " is too long. Maximum length is 128.",
            Reach::Batch, position};
}

Error unclosedQuote(const std::string& rest, int position) {
    return {105, "Unclosed quotation mark after the character string " + quoted(rest) + ".", Reach::Batch, position};
}

Error unclosedComment(int position) {
    return {113, "Missing end comment mark '*/'.", Reach::Batch, position};
}

Error tooManyPrefixes(const std::string& name, int position) {
    return {117,
            "The object name " + quoted(name) + " contains more than the maximum number of prefixes. The maximum is 3.",
            Reach::Batch, position};
}

Error undeclaredVariable(const std::string& variable, int position) {
    return {137, "Must declare the scalar variable \"" + variable + "\".", Reach::Batch, position};
}

Error sizeBeyondAnyType(const std::string& kind, const std::string& name, const std::string& size, int position) {
    return {131,
            "The size (" + size + ") given to the " + kind + " " + quoted(name) +
                " exceeds the maximum allowed for any data type (8000).",
            Reach::Batch, position};
}

Error floatOutOfRange(const std::string& number, int position) {
    return {168,
            "The floating point value " + quoted(number) + " is out of the range of computer representation (8 bytes).",
            Reach::Batch, position};
}

Error numberTooLong(int position) {
    return {8115, "Arithmetic overflow error converting expression to data type numeric.", Reach::Batch, position};
}

Error syntaxNearKeyword(const std::string& keyword, int position) {
    return {156, "Incorrect syntax near the keyword " + quoted(keyword) + ".", Reach::Batch, position};
}

Error scaleOutOfRange(const std::string& scale, const std::string& name, int maximum, int position) {
    return {183,
            "The scale (" + scale + ") for column " + quoted(name) + " must be within the range 0 to " +
                std::to_string(maximum) + ".",
            Reach::Batch, position};
}

Error nestedTooDeep() {
    return {191,
            "Some part of your SQL statement is nested too deeply. Rewrite the query or break it up into smaller "
            "queries.",
            Reach::Batch};
}

Error invalidColumn(const std::string& column) {
    return {207, "Invalid column name " + quoted(column) + ".", Reach::Batch};
}

Error invalidObject(const std::string& object) {
    return {208, "Invalid object name " + quoted(object) + ".", Reach::Batch};
}

Error ambiguousColumn(const std::string& column) {
    return {209, "Ambiguous column name " + quoted(column) + ".", Reach::Batch};
}

Error dateConversion() {
    return {241, "Conversion failed when converting date and/or time from character string.", Reach::Batch};
}

Error dateOutOfRange() {
    return {242, "The conversion of a varchar data type to a datetime data type resulted in an out-of-range value.",
            Reach::Batch};
}

Error undefinedType(const std::string& type, int position) {
    return {243, "Type " + type + " is not a defined system type.", Reach::Batch, position};
}

Error intConversion(const std::string& type, const std::string& value, const std::string& target) {
    return {245,
            "Conversion failed when converting the " + type + " value " + quoted(value) + " to data type " + target +
                ".",
            Reach::Batch};
}

Error invalidCollation(const std::string& collation, int position) {
    return {448, "Invalid collation " + quoted(collation) + ".", Reach::Batch, position};
}

Error nullIntoColumn(const std::string& column, const std::string& table, const std::string& verb) {
    return {515, "Cannot insert the value NULL into column " + quoted(column) + ", table " + quoted(table) +
                     "; column does not allow nulls. " + verb + " fails."};
}

Error explicitIdentity(const std::string& table) {
    return {544, "Cannot insert explicit value for identity column in table " + quoted(table) +
                     " when IDENTITY_INSERT is set to OFF."};
}

Error databaseMissing(const std::string& database) {
    return {911, "Database " + quoted(database) + " does not exist. Make sure that the name is entered correctly.",
            Reach::Batch};
}

Error invalidLength(const std::string& length, int position) {
    return {1001, "Line 1: Length or precision specification " + length + " is invalid.", Reach::Batch, position};
}

Error emptyName(int position) {
    return {1038,
            "An object or column name is missing or empty. For SELECT INTO statements, verify each column has a name. "
            "For other statements, look for empty alias names. Aliases defined as \"\" or [] are not allowed. Change "
            "the alias to a valid name.",
            Reach::Batch, position};
}

Error lockTimeout() {
    return {1222, "Lock request time out period exceeded."};
}

Error databaseExists(const std::string& database) {
    return {1801, "Database " + quoted(database) + " already exists. Choose a different database name."};
}

Error duplicateIndexKey(const std::string& table, const std::string& index) {
    return {2601,
            "Cannot insert duplicate key row in object " + quoted(table) + " with unique index " + quoted(index) + "."};
}

Error duplicateKey(const std::string& kind, const std::string& constraint, const std::string& table) {
    return {2627, "Violation of " + kind + " constraint " + quoted(constraint) +
                      ". Cannot insert duplicate key in object " + quoted(table) + "."};
}

Error duplicateColumn(const std::string& column, const std::string& table) {
    return {2705, "Column names in each table must be unique. Column name " + quoted(column) + " in table " +
                      quoted(table) + " is specified more than once."};
}

Error objectExists(const std::string& object) {
    return {2714, "There is already an object named " + quoted(object) + " in the database."};
}

Error typeMissing(int ordinal, const std::string& type, int position) {
    return {2715,
            "Column, parameter, or variable #" + std::to_string(ordinal) + ": Cannot find data type " + type + ".",
            Reach::Batch, position};
}

Error sizeExceeded(const std::string& kind, const std::string& name, const std::string& size, int maximum,
                   int position) {
    return {2717,
            "The size (" + size + ") given to the " + kind + " " + quoted(name) + " exceeds the maximum allowed (" +
                std::to_string(maximum) + ").",
            Reach::Batch, position};
}

Error precisionExceeded(int ordinal, const std::string& precision, int position) {
    return {2750,
            "Column or parameter #" + std::to_string(ordinal) + ": Specified column precision " + precision +
                " is greater than the maximum precision of 38.",
            Reach::Batch, position};
}

Error procedureMissing(const std::string& procedure) {
    return {2812, "Could not find stored procedure " + quoted(procedure) + "."};
}

Error cannotDrop(const std::string& kind, const std::string& object) {
    return {3701, "Cannot drop the " + kind + " " + quoted(object) +
                      ", because it does not exist or you do not have permission."};
}

Error cannotOpenDatabase(const std::string& database) {
    return {4060, "Cannot open database \"" + database + "\" requested by the login. The login failed.",
            Reach::Connection};
}

Error unboundIdentifier(const std::string& identifier) {
    return {4104, "The multi-part identifier \"" + identifier + "\" could not be bound.", Reach::Batch};
}

Error conditionExpected(const std::string& token, int position) {
    return {4145,
            "An expression of non-boolean type specified in a context where a condition is expected, near " +
                quoted(token) + ".",
            Reach::Batch, position};
}

Error alterNeedsDefault(const std::string& column, const std::string& table) {
    return {4901, "ALTER TABLE only allows columns to be added that can contain nulls, or have a DEFAULT definition "
                  "specified, or the column being added is an identity or timestamp column, or alternatively if none "
                  "of the previous conditions are satisfied the table must be empty to allow addition of this column. "
                  "Column " +
                      quoted(column) + " cannot be added to non-empty table " + quoted(table) +
                      " because it does not satisfy these conditions."};
}

Error directoryLookup(const std::string& file, const std::string& reason) {
    return {5133,
            "Directory lookup for the file \"" + file + "\" failed with the operating system error " + reason + "."};
}

Error nullableKey(const std::string& table, int position) {
    return {8111, "Cannot define PRIMARY KEY constraint on nullable column in table " + quoted(table) + ".",
            Reach::Batch, position};
}

Error numericConversion() {
    return {8114, "Error converting data type varchar to numeric.", Reach::Batch};
}

Error overflow(const std::string& target) {
    return {8115, "Arithmetic overflow error converting expression to data type " + target + "."};
}

Error nullableIdentity(const std::string& column, const std::string& table, int position) {
    return {8147,
            "Could not create IDENTITY attribute on nullable column " + quoted(column) + ", table " + quoted(table) +
                ".",
            Reach::Batch, position};
}

Error truncated() {
    return {8152, "String or binary data would be truncated."};
}

Error optionMissing(const std::string& option) {
    return {15123, "The configuration option " + quoted(option) + " does not exist, or it may be an advanced option."};
}

Error loginFailed(const std::string& user) {
    return {18456, "Login failed for user " + quoted(user) + ".", Reach::Connection};
}

} // namespace engine::errors
