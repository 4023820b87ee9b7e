// Any batch has rows or errors of the server's own, and the session answers the next one. An empty corpus folder is
// given statements as its seeds.

#include "engine/StatementTexts.h"
#include "engine/errors/Error.h"
#include "engine/fuzz/FuzzInstance.h"

#include <cstdint>
#include <fstream>

namespace {

namespace fs = std::filesystem;

constexpr const char* kMoreSeeds[] = {
    "select s, sum(d), avg(f) from tipi where n like 'C[a-i]%' group by s having count(*) > 0 order by max(q)",
    "select (select sum(tipi.g)), case when b = 1 then d else 2.50 end from tipi",
    "select round(f, 2), abs(g), -t, floor(d), ceiling(r), str(f, 10, 2), d * 1.5 / s from tipi",
    "select dateadd(month, 3, q), datediff(day, q, getdate()), q + 1, convert(varchar(20), q, 103) from tipi",
    "select cast('1e300' as float) * 10, cast(99999 as smallint), 1e308 * 10, 9223372036854775807 + 1",
    "create table [a.b] (id int identity primary key, x decimal(38,10) null unique, y nvarchar(max) default 'z')",
    "begin transaction insert into tipi (n) select n from molte where n < 3 rollback",
    "update tipi set d = y.d from tipi, tipi as y where tipi.id = y.id; delete from tipi where id in (select 9)",
    "use master select * from prova.dbo.tipi; alter database prova set auto_close on; use prova",
    "select top 3 a.n, b.n from molte as a left join molte as b on a.n = b.n union all select 1, null order by 1 desc",
    "if exists (select 1 from information_schema.columns) print 'sì' else print upper(left('no', 1)) + space(3)",
};

void write(const fs::path& file, const char* text) {
    std::ofstream(file, std::ios::binary) << text;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    for (int i = 1; i < *argc; ++i) {
        const fs::path folder((*argv)[i]);
        if (!fs::is_directory(folder) || !fs::is_empty(folder)) {
            continue;
        }
        for (const auto& sample : engine::samples::kStatements) {
            write(folder / sample.name, sample.text);
        }
        int number = 0;
        for (const char* seed : kMoreSeeds) {
            write(folder / ("seed" + std::to_string(number++)), seed);
        }
        break;
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static engine::fuzz::FuzzInstance instances;
    const auto session = engine::Session::open(instances.get(), {"", "", "prova"});
    const auto run = [&](std::string_view text) {
        try {
            const auto batch = session->execute(text);
            constexpr int kMostErrors = 100;
            for (int errors = 0; errors < kMostErrors; ++errors) {
                try {
                    while (batch->nextResult()) {
                        while (const engine::ResultRow* row = batch->nextRow()) {
                            for (int i = 0; i < static_cast<int>(batch->columns().size()); ++i) {
                                row->text(i);
                            }
                        }
                    }
                    break;
                } catch (const engine::Error& error) {
                    if (error.reach() != engine::Error::Reach::Statement) {
                        break;
                    }
                }
            }
        } catch (const engine::Error&) {
            return;
        }
    };
    run({reinterpret_cast<const char*>(data), size});
    const auto batch = session->execute("select 1");
    const engine::ResultRow* row = batch->nextResult() ? batch->nextRow() : nullptr;
    if (row == nullptr || row->integer(0) != 1) {
        std::abort();
    }
    return 0;
}
