// Rows without a database on a server without any company's database: the search finds such a row each time.

#include "platform/Process.h"
#include "session/ApriAzienda.h"
#include "session/SessionFixture.h"
#include "support/SomebodyElse.h"

#include <map>
#include <ostream>

namespace {

using namespace vabo;

/// The values of dbname, in the order of the rows.
struct Righe {
    const char* name;
    std::vector<const char*> databases;
};

std::ostream& operator<<(std::ostream& out, const Righe& righe) {
    return out << righe.name;
}

class ApriAziendaGiro : public SessionTest, public testing::WithParamInterface<Righe> {
protected:
    ApriAziendaGiro() {
        // The search would find the temporary database by its name: it is on another server here.
        workstation.putFile("C:\\vabo\\Leggi_ServerLocal.txt", "Server=127.0.0.1,9;\r\n");
        noCompanyDatabases();
        control("delete from link_programma");
        for (const char* database : GetParam().databases) {
            control(std::string("insert into link_programma (NomeAzienda, dbname) values ('x', ") + database + ")");
        }
        for (const auto& row :
             workstation.rows(support::kControlDatabase, "select id from link_programma order by id")) {
            numbers.push_back(std::stod(row.front()));
        }
    }
    /// How often each company was looked up until the end.
    std::map<std::string, int> lookUpsUntilTheEnd(double id) {
        std::map<std::string, int> lookUps;
        int statements = 0;
        const support::SomebodyElse hears([&](const std::string& text) {
            constexpr int kFarTooMany = 500;
            if (++statements == kFarTooMany) {
                platform::TerminaProcesso();
            }
            if (text.starts_with("Select * from link_programma  where   id = ")) {
                ++lookUps[text];
            }
        });
        script.expectMessage("Non è possibile caricare il DataBase");
        EXPECT_TRUE(end.endedBy([&] { ApriAzienda(id); }));
        EXPECT_TRUE(script.allShown());
        return lookUps;
    }
    /// The company that the search finds is looked up because it was found, even where it was asked for already.
    void expectEachLookedUpOnce(double id) {
        const double asked = id == 0 ? startingNumber() : id;
        const auto lookUps = lookUpsUntilTheEnd(id);
        EXPECT_FALSE(lookUps.empty());
        for (const auto& [text, times] : lookUps) {
            const bool twice = asked == found() && text.ends_with(" = " + textOf(asked));
            EXPECT_EQ(times, twice ? 2 : 1) << text;
        }
    }
    /// The search looks for a company without a database; the order of the rows is the server's.
    double found() const {
        const auto row = workstation.rows(support::kControlDatabase, "Select id from link_programma where dbname = ''");
        return std::stod(row.front().front());
    }
    /// What a terminal without a number begins with.
    double startingNumber() const {
        const auto own = terminals();
        const auto row = workstation.rows(support::kControlDatabase, "Select id from link_programma order by dbname");
        return own.empty() ? std::stod(row.front().front()) : std::stod(own.front()[1]);
    }

    std::vector<double> numbers;
};

TEST_P(ApriAziendaGiro, WithoutANumberIsWalkedOnce) {
    expectEachLookedUpOnce(0);
}

TEST_P(ApriAziendaGiro, IsWalkedOnceFromEachRow) {
    for (const double number : numbers) {
        expectEachLookedUpOnce(number);
    }
}

TEST_P(ApriAziendaGiro, IsWalkedOnceFromANumberWithoutARow) {
    expectEachLookedUpOnce(numbers.back() + 1);
}

TEST_P(ApriAziendaGiro, IsWalkedOnceByATerminalWithARow) {
    setTerminal(support::kTerminalName, numbers.back());
    expectEachLookedUpOnce(0);
}

INSTANTIATE_TEST_SUITE_P(Righe, ApriAziendaGiro,
                         testing::Values(Righe{"Empty", {"''"}}, Righe{"Blank", {"' '"}},
                                         Righe{"EmptyAndBlank", {"''", "' '"}}, Righe{"BlankAndEmpty", {"' '", "''"}},
                                         Righe{"Several", {"''", "' '", "''", "' '"}},
                                         Righe{"EmptyAndGone", {"''", "'VaBoDatiAurora'"}},
                                         Righe{"GoneAndEmpty", {"'VaBoDatiAurora'", "''"}},
                                         Righe{"BlankAndGone", {"' '", "'VaBoDatiAurora'"}},
                                         Righe{"GoneAndBlank", {"'VaBoDatiAurora'", "' '"}}),
                         [](const auto& test) { return std::string(test.param.name); });

/// The terminal's row can't be written: the number read from it is never the one asked for.
TEST_F(SessionTest, ATerminalsRowThatNobodyCanChangeIsWalkedOnceToo) {
    workstation.putFile("C:\\vabo\\Leggi_ServerLocal.txt", "Server=127.0.0.1,9;\r\n");
    noCompanyDatabases();
    control("update link_programma set dbname = '' where dbname = 'VaBoDatiPonte'");
    setTerminal(support::kTerminalName, idOf(support::kCompany));
    int statements = 0;
    // Another process undoes each change before it is read.
    const support::SomebodyElse hears([&](const std::string& text) {
        constexpr int kFarTooMany = 500;
        if (++statements == kFarTooMany) {
            platform::TerminaProcesso();
        }
        if (text.starts_with("Select * from link_programmaTerminale")) {
            control("update link_programmaTerminale set ultimo = " + textOf(idOf(support::kCompany)));
        }
    });
    double id = idOf("");
    script.expectMessage("Non è possibile caricare il DataBase");
    EXPECT_TRUE(end.endedBy([&] { ApriAzienda(id); }));
    EXPECT_TRUE(script.allShown());
}

} // namespace
