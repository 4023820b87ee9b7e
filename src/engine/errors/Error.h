#pragma once

#include <stdexcept>
#include <string>

namespace engine {

/// What the server answers to a text it refuses: number and words are the server's own.
class Error : public std::runtime_error {
public:
    /// How much of a batch an error ends.
    enum class Reach { Statement, Batch, Connection };

    Error(int number, const std::string& text, Reach reach = Reach::Statement, int position = -1)
        : std::runtime_error(text), number_(number), reach_(reach), position_(position) {}

    int number() const { return number_; }
    Reach reach() const { return reach_; }
    /// Byte offset in the batch where the error was noticed, -1 where there is none.
    int position() const { return position_; }

private:
    int number_;
    Reach reach_;
    int position_;
};

/// Our own bug, never the user's: a promise between two stages that was not kept. It never leaves a session: see
/// InternalErrors.h.
class InternalError : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

/// The texts of the server's errors, one function a number, so that each text stands once.
/// Source of numbers and texts: the public list of database engine events and errors.
namespace errors {
Error syntaxNear(const std::string& token, int position);            // 102
Error identifierTooLong(const std::string& start, int position);     // 103
Error unclosedQuote(const std::string& rest, int position);          // 105
Error unclosedComment(int position);                                 // 113
Error tooManyPrefixes(const std::string& name, int position);        // 117
Error undeclaredVariable(const std::string& variable, int position); // 137
Error floatOutOfRange(const std::string& number, int position);      // 168
Error numberTooLong(int position);                                   // 8115, of more digits than any decimal has
Error sizeBeyondAnyType(const std::string& kind, const std::string& name, const std::string& size, int position); // 131
Error syntaxNearKeyword(const std::string& keyword, int position);                                                // 156
Error scaleOutOfRange(const std::string& scale, const std::string& name, int maximum, int position);              // 183
Error ambiguousColumn(const std::string& column);                                                                 // 209
Error unboundIdentifier(const std::string& identifier);                                               // 4104
Error invalidColumn(const std::string& column);                                                       // 207
Error invalidObject(const std::string& object);                                                       // 208
Error dateConversion();                                                                               // 241
Error dateOutOfRange();                                                                               // 242
Error undefinedType(const std::string& type, int position);                                           // 243
Error intConversion(const std::string& type, const std::string& value, const std::string& target);    // 245
Error invalidCollation(const std::string& collation, int position);                                   // 448
Error nullIntoColumn(const std::string& column, const std::string& table, const std::string& verb);   // 515
Error explicitIdentity(const std::string& table);                                                     // 544
Error databaseMissing(const std::string& database);                                                   // 911
Error invalidLength(const std::string& length, int position);                                         // 1001
Error emptyName(int position);                                                                        // 1038
Error lockTimeout();                                                                                  // 1222
Error databaseExists(const std::string& database);                                                    // 1801
Error nestedTooDeep();                                                                                // 191
Error duplicateKey(const std::string& kind, const std::string& constraint, const std::string& table); // 2627
Error duplicateIndexKey(const std::string& table, const std::string& index);                          // 2601
Error duplicateColumn(const std::string& column, const std::string& table);                           // 2705
Error objectExists(const std::string& object);                                                        // 2714
Error typeMissing(int ordinal, const std::string& type, int position);                                // 2715
Error sizeExceeded(const std::string& kind, const std::string& name, const std::string& size, int maximum,
                   int position);                                                          // 2717
Error precisionExceeded(int ordinal, const std::string& precision, int position);          // 2750
Error procedureMissing(const std::string& procedure);                                      // 2812
Error cannotDrop(const std::string& kind, const std::string& object);                      // 3701
Error cannotOpenDatabase(const std::string& database);                                     // 4060
Error conditionExpected(const std::string& token, int position);                           // 4145
Error alterNeedsDefault(const std::string& column, const std::string& table);              // 4901
Error directoryLookup(const std::string& file, const std::string& reason);                 // 5133
Error nullableKey(const std::string& table, int position);                                 // 8111
Error numericConversion();                                                                 // 8114
Error overflow(const std::string& target);                                                 // 8115
Error nullableIdentity(const std::string& column, const std::string& table, int position); // 8147
Error truncated();                                                                         // 8152
Error optionMissing(const std::string& option);                                            // 15123
Error loginFailed(const std::string& user);                                                // 18456
} // namespace errors

} // namespace engine
