#pragma once

#include <stdexcept>
#include <string>

namespace ado {

/// Numbers of the data layer's own errors and of its classes of server errors.
enum ErrorNumber : int {
    kOverflow = 6,
    kTypeMismatch = 13,
    kPathNotFound = 76,
    kInvalidUseOfNull = 94,
    kWrongArguments = 3001,
    kNoCurrentRecord = 3021,
    kNotAllowedHere = 3219,
    kNotUpdatable = 3251,
    kItemNotFound = 3265,
    kWrongType = 3421,
    kObjectClosed = 3704,
    kObjectOpen = 3705,
    kProviderNotFound = 3706,
    kConnectionUnusable = 3709,
    kStillExecuting = 3711,
    kMultipleStep = -2147217887,
    kObjectMissing = -2147217865,
    kSyntaxOrColumn = -2147217900,
    kConstraint = -2147217873,
    kTruncation = -2147217833,
    kConversion = -2147217913,
    kRowChanged = -2147217864,
    kLogin = -2147217843,
    kUnspecified = -2147467259
};

/// The exception of the data layer. `description()` is what the user reads; the rest helps to find the cause.
class Error : public std::exception {
public:
    /// One of the data layer's own errors, with its documented text.
    explicit Error(ErrorNumber number);
    Error(int number, std::string description);
    Error(int number, std::string description, std::string sqlState, int nativeError, std::string statement);

    int number() const { return number_; }
    const std::string& description() const { return description_; }
    const std::string& sqlState() const { return sqlState_; }
    int nativeError() const { return nativeError_; } ///< the server's number, 0 for errors that aren't the server's
    const std::string& statement() const { return statement_; }
    const std::string& context() const { return context_; }

    /// Adds the place where it happened. Callers add theirs as the error passes them, so the innermost is first.
    Error& in(const std::string& place);
    /// Sets the statement that failed. Where it is set already, it stays.
    Error& during(const std::string& statement);

    const char* what() const noexcept override { return description_.c_str(); }

private:
    int number_;
    std::string description_;
    std::string sqlState_;
    int nativeError_ = 0;
    std::string statement_;
    std::string context_;
};

} // namespace ado
