#include "ado/ServerErrors.h"

#include <algorithm>
#include <array>

namespace ado {

namespace {

struct ServerErrorClass {
    int nativeError;
    ErrorNumber number;
    const char* sqlState;
};

// Ordered by the server's number.
constexpr std::array kClasses = std::to_array<ServerErrorClass>({
    {102, kSyntaxOrColumn, "42000"},  {103, kSyntaxOrColumn, "42000"},  {105, kSyntaxOrColumn, "42000"},
    {113, kSyntaxOrColumn, "42000"},  {117, kSyntaxOrColumn, "42000"},  {137, kSyntaxOrColumn, "42000"},
    {156, kSyntaxOrColumn, "42000"},  {170, kSyntaxOrColumn, "42000"},  {191, kSyntaxOrColumn, "42000"},
    {195, kSyntaxOrColumn, "42000"},  {207, kSyntaxOrColumn, "42S22"},  {208, kObjectMissing, "42S02"},
    {209, kSyntaxOrColumn, "42000"},  {213, kSyntaxOrColumn, "21S01"},  {220, kConversion, "22003"},
    {235, kConversion, "22018"},      {241, kConversion, "22007"},      {242, kConversion, "22007"},
    {243, kSyntaxOrColumn, "42000"},  {244, kConversion, "22003"},      {245, kConversion, "22018"},
    {248, kConversion, "22003"},      {515, kConstraint, "23000"},      {544, kConstraint, "23000"},
    {547, kConstraint, "23000"},      {1038, kSyntaxOrColumn, "42000"}, {1222, kUnspecified, "HYT00"},
    {2601, kConstraint, "23000"},     {2627, kConstraint, "23000"},     {2705, kSyntaxOrColumn, "42S21"},
    {2714, kSyntaxOrColumn, "42S01"}, {2715, kSyntaxOrColumn, "42000"}, {2812, kSyntaxOrColumn, "42000"},
    {3701, kObjectMissing, "42S02"},  {4060, kLogin, "42000"},          {4104, kSyntaxOrColumn, "42000"},
    {4145, kSyntaxOrColumn, "42000"}, {8102, kSyntaxOrColumn, "42000"}, {8114, kConversion, "22018"},
    {8115, kConversion, "22003"},     {8152, kTruncation, "22001"},     {18456, kLogin, "28000"},
});
static_assert(std::ranges::is_sorted(kClasses, {}, &ServerErrorClass::nativeError));

} // namespace

Error serverError(int nativeError, const std::string& text) {
    const auto found = std::ranges::lower_bound(kClasses, nativeError, {}, &ServerErrorClass::nativeError);
    if (found == kClasses.end() || found->nativeError != nativeError) {
        return {kUnspecified, text, "HY000", nativeError, {}};
    }
    return {found->number, text, found->sqlState, nativeError, {}};
}

} // namespace ado
