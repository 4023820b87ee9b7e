#pragma once

// Errors of statements that define tables, indexes and settings.

#include "engine/errors/TextErrors.h"

namespace engine::errors {

/// The words are the same whatever is done to the table; the number isn't.
inline constexpr Text kCannotFind =
    "Cannot find the object \"{table}\" because it does not exist or you do not have permissions.";
inline constexpr ErrorText<Text> missingTableToChange{1088, Reach::Statement, kCannotFind};
inline constexpr ErrorText<Text> unknownSetOption{195, Reach::Batch, "'{option}' is not a recognized SET option."};
inline constexpr ErrorText<Text, Text> duplicateInNewKey{
    1505, Reach::Statement,
    "The CREATE UNIQUE INDEX statement terminated because a duplicate key was found for the "
    "object name 'dbo.{table}' and the index name '{key}'."};
inline constexpr ErrorText<Text> twoPrimaryKeys{1779, Reach::Batch,
                                                "Table '{table}' already has a primary key defined on it."};
inline constexpr ErrorText<Text> keyColumnMissing{1911, Reach::Batch,
                                                  "Column name '{column}' does not exist in the target table or view."};
inline constexpr ErrorText<Text, Text> indexExists{
    1913, Reach::Statement,
    "The operation failed because an index or statistics with name '{index}' already exists "
    "on table '{table}'."};
inline constexpr ErrorText<Text, Text> duplicateColumn{
    2705, Reach::Statement,
    "Column names in each table must be unique. Column name '{column}' in table '{table}' is "
    "specified more than once."};
inline constexpr ErrorText<Text> objectExists{2714, Reach::Statement,
                                              "There is already an object named '{object}' in the database."};
inline constexpr ErrorText<Text> severalIdentities{
    2744, Reach::Batch,
    "Multiple identity columns specified for table '{table}'. Only one identity column per "
    "table is allowed."};
inline constexpr ErrorText<Text> unknownLanguage{
    2740, Reach::Statement,
    "SET LANGUAGE failed because '{language}' is not an official language name or a language "
    "alias on this SQL Server."};
inline constexpr ErrorText<Text> invalidDateOrder{2741, Reach::Statement,
                                                  "SET DATEFORMAT date order '{order}' is invalid."};
inline constexpr ErrorText<Text> dateFirstOutOfRange{2742, Reach::Statement, "SET DATEFIRST {number} is out of range."};
inline constexpr ErrorText<Text> identityType{
    2749, Reach::Statement,
    "Identity column '{column}' must be of data type int, bigint, smallint, tinyint, or decimal or numeric with a scale "
    "of 0, and constrained to be nonnullable."};
inline constexpr ErrorText<Text, Text> indexOfConstraint{
    3723, Reach::Statement,
    "An explicit DROP INDEX is not allowed on index '{index}'. It is being used for "
    "{constraint} constraint enforcement."};
inline constexpr ErrorText<Text> missingTableToEmpty{4701, Reach::Statement, kCannotFind};
inline constexpr ErrorText<Text, Text> alterNeedsDefault{
    4901, Reach::Statement,
    "ALTER TABLE only allows columns to be added that can contain nulls, or have a DEFAULT "
    "definition specified, or the column being added is an identity or timestamp column, or "
    "alternatively if none of the previous conditions are satisfied the table must be empty "
    "to allow addition of this column. Column '{column}' cannot be added to non-empty table "
    "'{table}' because it does not satisfy these conditions."};
inline constexpr ErrorText<Text> missingTableToAlter{4902, Reach::Statement, kCannotFind};
inline constexpr ErrorText<Text> alterDatabaseRefused{
    5011, Reach::Statement,
    "User does not have permission to alter database '{database}', the database does not "
    "exist, or the database is not in a state that allows access checks."};
inline constexpr ErrorText<Text> identityMissing{
    8106, Reach::Statement, "Table '{table}' does not have the identity property. Cannot perform SET operation."};
inline constexpr ErrorText<Text, Text> identityInsertBusy{
    8107, Reach::Statement,
    "IDENTITY_INSERT is already ON for table '{holder}'. Cannot perform SET operation for "
    "table '{table}'."};

/// The words of nullableKey, for a column that the table has already.
inline constexpr ErrorText<Text> severalPrimaryKeys{8110, Reach::Batch,
                                                    "Cannot add multiple PRIMARY KEY constraints to table '{table}'."};
inline constexpr ErrorText<Text> nullableColumnOfKey{8111, Reach::Statement, nullableKey.words()};
/// What a server offers and this one doesn't, in the words in which a server of another edition refuses.
inline constexpr ErrorText<Text> notSupported{
    40510, Reach::Statement, "Statement '{statement}' is not supported in this version of SQL Server."};

} // namespace engine::errors
