#pragma once

// Errors of the storage: keys, locks, files, databases.

#include "engine/errors/ErrorText.h"

namespace engine::errors {

inline constexpr ErrorText<Text, Text, Text> nullIntoColumn{
    515, Reach::Statement,
    "Cannot insert the value NULL into column '{column}', table '{table}'; column does not "
    "allow nulls. {verb} fails."};
inline constexpr ErrorText<> outOfMemory{701, Reach::Statement,
                                         "There is insufficient system memory to run this query."};
inline constexpr ErrorText<Text> storageBroken{823, Reach::Batch,
                                               "The operating system or the storage returned an error: {detail}."};
inline constexpr ErrorText<Text> storageFull{
    1105, Reach::Statement,
    "Could not allocate space for an object in database '{database}' because the disk is "
    "full. Create disk space by deleting unneeded files."};
inline constexpr ErrorText<> lockTimeout{1222, Reach::Statement, "Lock request time out period exceeded."};
inline constexpr ErrorText<Text> databaseExists{
    1801, Reach::Statement, "Database '{database}' already exists. Choose a different database name."};
inline constexpr ErrorText<Text, Text> duplicateIndexKey{
    2601, Reach::Statement, "Cannot insert duplicate key row in object '{table}' with unique index '{index}'."};
inline constexpr ErrorText<Text, Text, Text> duplicateKey{
    2627, Reach::Statement,
    "Violation of {kind} constraint '{constraint}'. Cannot insert duplicate key in object "
    "'{table}'."};
inline constexpr ErrorText<Text, Text> cannotDrop{
    3701, Reach::Statement,
    "Cannot drop the {kind} '{object}', because it does not exist or you do not have "
    "permission."};
inline constexpr ErrorText<Text> databaseInUse{3702, Reach::Statement,
                                               "Cannot drop database \"{database}\" because it is currently in use."};
inline constexpr ErrorText<Text> systemDatabase{
    3708, Reach::Statement, "Cannot drop the database '{database}' because it is a system database."};
inline constexpr ErrorText<Text> readOnlyDatabase{
    3906, Reach::Statement, "Failed to update database \"{database}\" because the database is read-only."};
inline constexpr ErrorText<> cancelled{
    3980, Reach::Batch,
    "The request failed to run because the batch is aborted, this can be caused by abort signal sent from client, or "
    "another request is running in the same session, which makes the session busy."};
inline constexpr ErrorText<Text, Text> directoryLookup{
    5133, Reach::Statement,
    "Directory lookup for the file \"{file}\" failed with the operating system error "
    "{reason}."};
inline constexpr ErrorText<Text> fileExists{
    5170, Reach::Statement,
    "Cannot create file '{file}' because it already exists. Change the file path or the file "
    "name, and retry the operation."};
inline constexpr ErrorText<Text> databaseUnknown{
    15010, Reach::Statement, "The database '{database}' does not exist. Use sp_helpdb to show available databases."};

} // namespace engine::errors
