#pragma once

// Errors of sessions, procedures and transactions.

#include "engine/errors/ValueErrors.h"

namespace engine::errors {

inline constexpr ErrorText<Text> invalidObject{208, Reach::Batch, "Invalid object name '{object}'."};
inline constexpr ErrorText<Text> databaseMissing{
    911, Reach::Batch, "Database '{database}' does not exist. Make sure that the name is entered correctly."};
inline constexpr ErrorText<Text> procedureMissing{2812, Reach::Statement,
                                                  "Could not find stored procedure '{procedure}'."};
inline constexpr ErrorText<> nothingToCommit{3902, Reach::Statement,
                                             "The COMMIT TRANSACTION request has no corresponding BEGIN TRANSACTION."};
inline constexpr ErrorText<> nothingToRollBack{
    3903, Reach::Statement, "The ROLLBACK TRANSACTION request has no corresponding BEGIN TRANSACTION."};
inline constexpr ErrorText<Text> cannotOpenDatabase{
    4060, Reach::Connection, "Cannot open database \"{database}\" requested by the login. The login failed."};
inline constexpr ErrorText<Text> unknownTransaction{
    6401, Reach::Statement, "Cannot roll back {name}. No transaction or savepoint of that name was found."};
/// The words of conversionError for an argument of a procedure; the batch goes on.
inline constexpr ErrorText<Text, Text> parameterConversion{8114, Reach::Statement, conversionError.words()};
inline constexpr ErrorText<Text> tooManyArguments{
    8144, Reach::Statement, "Procedure or function {procedure} has too many arguments specified."};
inline constexpr ErrorText<Text, Text> unknownParameter{8145, Reach::Statement,
                                                        "{parameter} is not a parameter for procedure {procedure}."};
inline constexpr ErrorText<> internal{
    8630, Reach::Statement,
    "Internal Query Processor Error: The query processor encountered an unexpected error "
    "during execution."};
inline constexpr ErrorText<> databaseOptionUsage{15241, Reach::Statement,
                                                 "Usage: sp_dboption [dbname [,optname [,'true' | 'false']]]"};
inline constexpr ErrorText<> readOnlyCursor{16929, Reach::Statement, "The cursor is READ ONLY."};
inline constexpr ErrorText<Text> loginFailed{18456, Reach::Connection, "Login failed for user '{user}'."};

} // namespace engine::errors
