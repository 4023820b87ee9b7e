#include "ado/Error.h"

#include <algorithm>
#include <array>
#include <utility>

namespace ado {

namespace {

struct OwnText {
    ErrorNumber number;
    const char* text;
    const char* sqlState;
};

constexpr std::array kOwnTexts = std::to_array<OwnText>({
    {kOverflow, "Overflow", "22003"},
    {kTypeMismatch, "Type mismatch", "22018"},
    {kPathNotFound, "Path not found", ""},
    {kInvalidUseOfNull, "Invalid use of Null", "22002"},
    {kWrongArguments,
     "Arguments are of the wrong type, are out of acceptable range, or are in conflict with one another.", ""},
    {kNoCurrentRecord,
     "Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a current record.",
     ""},
    {kNotAllowedHere, "Operation is not allowed in this context.", ""},
    {kNotUpdatable,
     "Current Recordset does not support updating. This may be a limitation of the provider, or of the selected locktype.",
     ""},
    {kItemNotFound, "Item cannot be found in the collection corresponding to the requested name or ordinal.", ""},
    {kWrongType, "Application uses a value of the wrong type for the current operation.", ""},
    {kObjectClosed, "Operation is not allowed when the object is closed.", ""},
    {kObjectOpen, "Operation is not allowed when the object is open.", ""},
    {kProviderNotFound, "Provider cannot be found. It may not be properly installed.", ""},
    {kConnectionUnusable,
     "The connection cannot be used to perform this operation. It is either closed or invalid in this context.",
     "08003"},
    {kStillExecuting, "Operation cannot be performed while executing asynchronously.", "HY010"},
    {kMultipleStep, "Multiple-step operation generated errors. Check each status value.", ""},
    {kRowChanged, "Row cannot be located for updating. Some values may have been changed since it was last read.",
     "01001"},
});

const OwnText& ownText(ErrorNumber number) {
    static constexpr OwnText kNoText{kUnspecified, "Unspecified error", ""};
    const auto found = std::ranges::find(kOwnTexts, number, &OwnText::number);
    return found == kOwnTexts.end() ? kNoText : *found;
}

} // namespace

Error::Error(ErrorNumber number)
    : number_(number), description_(ownText(number).text), sqlState_(ownText(number).sqlState) {}

Error::Error(int number, std::string description) : number_(number), description_(std::move(description)) {}

Error::Error(int number, std::string description, std::string sqlState, int nativeError, std::string statement)
    : number_(number),
      description_(std::move(description)),
      sqlState_(std::move(sqlState)),
      nativeError_(nativeError),
      statement_(std::move(statement)) {}

Error& Error::in(const std::string& place) {
    if (!context_.empty()) {
        context_ += ", ";
    }
    context_ += place;
    return *this;
}

Error& Error::during(const std::string& statement) {
    if (statement_.empty()) {
        statement_ = statement;
    }
    return *this;
}

} // namespace ado
