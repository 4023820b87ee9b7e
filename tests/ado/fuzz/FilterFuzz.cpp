#include "ado/Error.h"
#include "ado/Filter.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ado;
    std::vector<FieldDescription> fields(3);
    fields[0].name = "id";
    fields[0].type = FieldType::Integer;
    fields[1].name = "nome";
    fields[2].name = "data";
    fields[2].type = FieldType::DateTime;
    RowStore rows(fields);
    rows.append({1, "Roma", Date::of(2004, 3, 7)});
    try {
        const FilterExpression filter({reinterpret_cast<const char*>(data), size}, fields);
        filter.admits(rows, 0);
    } catch (const Error& error) {
        if (error.number() != kWrongArguments) {
            throw;
        }
    }
    return 0;
}
