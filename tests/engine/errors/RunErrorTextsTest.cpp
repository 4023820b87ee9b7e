// Number, reach and words of the errors of the storage, of definitions and of sessions, and where the arguments stand
// in them.

#include "engine/errors/DefinitionErrors.h"
#include "engine/errors/ErrorTexts.h"
#include "engine/errors/RunErrors.h"
#include "engine/errors/StoreErrors.h"

namespace engine {
namespace {

TEST(ErrorTexts, OfTheStorage) {
    expectTexts({
        {errors::nullIntoColumn("Column", "Table", "Verb"), 515, kStatement,
         "Cannot insert the value NULL into column 'Column', table 'Table'; column does not allow nulls. "
         "Verb fails."},
        {errors::outOfMemory(), 701, kStatement, "There is insufficient system memory to run this query."},
        {errors::storageBroken("Detail"), 823, kBatch,
         "The operating system or the storage returned an error: Detail."},
        {errors::storageFull("Database"), 1105, kStatement,
         "Could not allocate space for an object in database 'Database' because the disk is full. Create "
         "disk space by deleting unneeded files."},
        {errors::lockTimeout(), 1222, kStatement, "Lock request time out period exceeded."},
        {errors::databaseExists("Database"), 1801, kStatement,
         "Database 'Database' already exists. Choose a different database name."},
        {errors::duplicateIndexKey("Table", "Index"), 2601, kStatement,
         "Cannot insert duplicate key row in object 'Table' with unique index 'Index'."},
        {errors::duplicateKey("Kind", "Constraint", "Table"), 2627, kStatement,
         "Violation of Kind constraint 'Constraint'. Cannot insert duplicate key in object 'Table'."},
        {errors::cannotDrop("Kind", "Object"), 3701, kStatement,
         "Cannot drop the Kind 'Object', because it does not exist or you do not have permission."},
        {errors::databaseInUse("Database"), 3702, kStatement,
         "Cannot drop database \"Database\" because it is currently in use."},
        {errors::systemDatabase("Database"), 3708, kStatement,
         "Cannot drop the database 'Database' because it is a system database."},
        {errors::readOnlyDatabase("Database"), 3906, kStatement,
         "Failed to update database \"Database\" because the database is read-only."},
        {errors::cancelled(), 3980, kBatch,
         "The request failed to run because the batch is aborted, this can be caused by abort signal sent from client, "
         "or another request is running in the same session, which makes the session busy."},
        {errors::directoryLookup("File", "Reason"), 5133, kStatement,
         "Directory lookup for the file \"File\" failed with the operating system error Reason."},
        {errors::fileExists("File"), 5170, kStatement,
         "Cannot create file 'File' because it already exists. Change the file path or the file name, and "
         "retry the operation."},
        {errors::databaseUnknown("Database"), 15010, kStatement,
         "The database 'Database' does not exist. Use sp_helpdb to show available databases."},
    });
}

TEST(ErrorTexts, OfDefinitions) {
    expectTexts({
        {errors::missingTableToChange("Table"), 1088, kStatement,
         "Cannot find the object \"Table\" because it does not exist or you do not have permissions."},
        {errors::unknownSetOption("Option"), 195, kBatch, "'Option' is not a recognized SET option."},
        {errors::duplicateInNewKey("Table", "Key"), 1505, kStatement,
         "The CREATE UNIQUE INDEX statement terminated because a duplicate key was found for the object "
         "name 'dbo.Table' and the index name 'Key'."},
        {errors::twoPrimaryKeys("Table"), 1779, kBatch, "Table 'Table' already has a primary key defined on it."},
        {errors::keyColumnMissing("Column"), 1911, kBatch,
         "Column name 'Column' does not exist in the target table or view."},
        {errors::indexExists("Index", "Table"), 1913, kStatement,
         "The operation failed because an index or statistics with name 'Index' already exists on table "
         "'Table'."},
        {errors::duplicateColumn("Column", "Table"), 2705, kStatement,
         "Column names in each table must be unique. Column name 'Column' in table 'Table' is specified "
         "more than once."},
        {errors::objectExists("Object"), 2714, kStatement,
         "There is already an object named 'Object' in the database."},
        {errors::severalPrimaryKeys("Table"), 8110, kBatch,
         "Cannot add multiple PRIMARY KEY constraints to table 'Table'."},
        {errors::identityType("Column"), 2749, kStatement,
         "Identity column 'Column' must be of data type int, bigint, smallint, tinyint, or decimal or numeric with a "
         "scale of 0, and constrained to be nonnullable."},
        {errors::severalIdentities("Table"), 2744, kBatch,
         "Multiple identity columns specified for table 'Table'. Only one identity column per table is "
         "allowed."},
        {errors::unknownLanguage("Language"), 2740, kStatement,
         "SET LANGUAGE failed because 'Language' is not an official language name or a language alias on this SQL "
         "Server."},
        {errors::invalidDateOrder("Order"), 2741, kStatement, "SET DATEFORMAT date order 'Order' is invalid."},
        {errors::dateFirstOutOfRange("9"), 2742, kStatement, "SET DATEFIRST 9 is out of range."},
        {errors::nullableColumnOfKey("Table"), 8111, kStatement,
         "Cannot define PRIMARY KEY constraint on nullable column in table 'Table'."},
        {errors::notSupported("Statement"), 40510, kStatement,
         "Statement 'Statement' is not supported in this version of SQL Server."},
        {errors::indexOfConstraint("Index", "Constraint"), 3723, kStatement,
         "An explicit DROP INDEX is not allowed on index 'Index'. It is being used for Constraint "
         "constraint enforcement."},
        {errors::missingTableToEmpty("Table"), 4701, kStatement,
         "Cannot find the object \"Table\" because it does not exist or you do not have permissions."},
        {errors::alterNeedsDefault("Column", "Table"), 4901, kStatement,
         "ALTER TABLE only allows columns to be added that can contain nulls, or have a DEFAULT "
         "definition specified, or the column being added is an identity or timestamp column, or "
         "alternatively if none of the previous conditions are satisfied the table must be empty to allow "
         "addition of this column. Column 'Column' cannot be added to non-empty table 'Table' because it "
         "does not satisfy these conditions."},
        {errors::missingTableToAlter("Table"), 4902, kStatement,
         "Cannot find the object \"Table\" because it does not exist or you do not have permissions."},
        {errors::alterDatabaseRefused("Database"), 5011, kStatement,
         "User does not have permission to alter database 'Database', the database does not exist, or the "
         "database is not in a state that allows access checks."},
        {errors::identityMissing("Table"), 8106, kStatement,
         "Table 'Table' does not have the identity property. Cannot perform SET operation."},
        {errors::identityInsertBusy("Holder", "Table"), 8107, kStatement,
         "IDENTITY_INSERT is already ON for table 'Holder'. Cannot perform SET operation for table "
         "'Table'."},
    });
}

TEST(ErrorTexts, OfSessionsAndProcedures) {
    expectTexts({
        {errors::invalidObject("Object"), 208, kBatch, "Invalid object name 'Object'."},
        {errors::databaseMissing("Database"), 911, kBatch,
         "Database 'Database' does not exist. Make sure that the name is entered correctly."},
        {errors::procedureMissing("Procedure"), 2812, kStatement, "Could not find stored procedure 'Procedure'."},
        {errors::nothingToCommit(), 3902, kStatement,
         "The COMMIT TRANSACTION request has no corresponding BEGIN TRANSACTION."},
        {errors::unknownTransaction("Name"), 6401, kStatement,
         "Cannot roll back Name. No transaction or savepoint of that name was found."},
        {errors::nothingToRollBack(), 3903, kStatement,
         "The ROLLBACK TRANSACTION request has no corresponding BEGIN TRANSACTION."},
        {errors::cannotOpenDatabase("Database"), 4060, kConnection,
         "Cannot open database \"Database\" requested by the login. The login failed."},
        {errors::parameterConversion("nvarchar", "int"), 8114, kStatement,
         "Error converting data type nvarchar to int."},
        {errors::tooManyArguments("Procedure"), 8144, kStatement,
         "Procedure or function Procedure has too many arguments specified."},
        {errors::unknownParameter("Parameter", "Procedure"), 8145, kStatement,
         "Parameter is not a parameter for procedure Procedure."},
        {errors::internal(), 8630, kStatement,
         "Internal Query Processor Error: The query processor encountered an unexpected error during "
         "execution."},
        {errors::databaseOptionUsage(), 15241, kStatement,
         "Usage: sp_dboption [dbname [,optname [,'true' | 'false']]]"},
        {errors::readOnlyCursor(), 16929, kStatement, "The cursor is READ ONLY."},
        {errors::loginFailed("User"), 18456, kConnection, "Login failed for user 'User'."},
    });
}

} // namespace
} // namespace engine
