// What the program writes on the local server, the record of the program that started and the databases themselves,
// with each request refused.

#include "CreaVaBoAziendaFixture.h"
#include "dblife/VerDb.h"
#include "session/ApriDbSede.h"
#include "support/Replays.h"

#include <algorithm>

namespace vabo {
namespace {

using support::inTurn;
using Lines = support::Lines;

class Locali : public CreaVaBoAzienda {
public:
    using CreaVaBoAzienda::workstation;

    void TestBody() override {}

    void expectAlive() const {}
    void reopen() const { EXPECT_TRUE(ApriDbTemp()); }
    Lines fields() const { return {DbTemp.IsOpen() ? "open" : "closed"}; }
    Lines shown() const { return {}; }
    Lines held() const { return {}; }

    const support::TestWorkstation& posto = workstation;
};

class Programma : public Locali {
public:
    void conTabella(const std::string& riga) const {
        workstation.run("master", "CREATE DATABASE [VaBoDatiTemp]");
        workstation.run("VaBoDatiTemp", "create table Version (id int null, Version int not null default 1)");
        workstation.run("VaBoDatiTemp", "insert into Version values " + riga);
    }
    static std::string half(const support::Stored& tutto) {
        std::string programmi;
        for (const auto& riga : tutto.at("VaBoDatiTemp.dbo.Version")) {
            programmi += " " + riga[1];
        }
        return "of programs" + programmi;
    }
};

constexpr const char* kNienteDiFatto = "silent; rows before; list right; fields kept";

support::Operation<Programma> programma(const std::string& riga, Lines una, Lines sempre) {
    return {.tables = {"VaBoDatiTemp.dbo.Version", "options"},
            .reach = [riga](Programma& mondo) { mondo.conTabella(riga); },
            .act = [](Programma& /*mondo*/) { EXPECT_EQ(VerDb(2), 0); },
            .once = std::move(una),
            .fromThere = std::move(sempre)};
}

// The program isn't recorded, and the row of the one before stays.
TEST(ProgrammaRifiuto, OfTheFirstRecord) {
    replay(programma("(7, 7)",
                     inTurn({{1, kNienteDiFatto},
                             {1, "silent; rows of programs 7 2; list right; fields kept"},
                             {1, support::kStoredKept},
                             {3, kNienteDiFatto}}),
                     inTurn({{6, kNienteDiFatto}})));
}

TEST(ProgrammaRifiuto, OfAnotherProgram) {
    replay(programma("(1, 1)",
                     inTurn({{1, kNienteDiFatto},
                             {1, "silent; rows of programs 2; list right; fields kept"},
                             {1, support::kStoredKept},
                             {4, kNienteDiFatto}}),
                     inTurn({{7, kNienteDiFatto}})));
}

/// On a server that has neither of the two databases.
class Databases : public Locali {
public:
    void bare() const { workstation.drop(support::kControlDatabase); }
    static std::string half(const support::Stored& tutto) {
        std::string quali;
        for (const char* nome : {"VaBoDatiTemp", "VaBoDatiAzienda"}) {
            if (std::ranges::count(tutto.at("databases"), support::TestWorkstation::Row{nome}) > 0) {
                quali += (quali.empty() ? "" : ", ") + std::string(nome);
            }
        }
        const auto tabelle = std::ranges::count_if(
            tutto, [](const auto& una) { return una.first.starts_with(std::string(support::kControlDatabase) + "."); });
        return "of " + quali + ", tables " + std::to_string(tabelle);
    }
};

// Each statement refused alone has a test of its own; here are the logins, and all from each request on.
TEST(DatabasesRifiuto, OfTheirCreationLeavesWhatWasCreatedSoFar) {
    using Lasting = support::Refusals::Lasting;
    const support::Operation<Databases> operazione{.tables = {"databases", "options",
                                                              "vabodatiazienda.dbo.link_programma",
                                                              "vabodatiazienda.dbo.link_programmaTerminale"},
                                                   .reach = [](Databases& mondo) { mondo.bare(); },
                                                   .act = [](Databases& /*mondo*/) { ApriDbTemp(); },
                                                   .once = {},
                                                   .fromThere = {}};
    const support::Run indisturbata = play(operazione, 0, Lasting::Once);
    ASSERT_EQ(indisturbata.asked.size(), 47U);
    const std::string chiusa = "; list right; fields kept";
    const std::string entrambi = "silent; rows of VaBoDatiTemp, VaBoDatiAzienda, tables ";
    const Lines daLi = inTurn({{5, kNienteDiFatto},
                               {19, "silent; rows of VaBoDatiTemp, tables 0" + chiusa},
                               {20, entrambi + "0" + chiusa},
                               {1, entrambi + "1" + chiusa},
                               {2, "silent; rows done" + chiusa}});
    for (int posto = 1; posto <= 47; ++posto) {
        EXPECT_EQ(outcome(play(operazione, posto, Lasting::FromThere), indisturbata),
                  daLi[static_cast<std::size_t>(posto - 1)])
            << posto << indisturbata.asked[static_cast<std::size_t>(posto - 1)];
    }
    const std::pair<int, std::string> accessi[] = {
        {1, kNienteDiFatto},        {2, support::kStored},
        {3, kNienteDiFatto},        {43, entrambi + "0; list right; fields done"},
        {46, support::kStoredKept}, {47, support::kStoredKept}};
    for (const auto& [posto, atteso] : accessi) {
        EXPECT_EQ(indisturbata.asked[static_cast<std::size_t>(posto - 1)].substr(0, 8), "login to");
        EXPECT_EQ(outcome(play(operazione, posto, Lasting::Once), indisturbata), atteso) << posto;
    }
}

} // namespace
} // namespace vabo
