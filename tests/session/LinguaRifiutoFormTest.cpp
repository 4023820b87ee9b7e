// The client's language, read and changed, with each of its requests to the local server refused.

#include "session/LinguaClient.h"
#include "session/ProgrammaRifiutato.h"

namespace vabo {
namespace {

using support::inTurn;

/// What the program takes for the language is compared with the row.
class Lingua : public Programma {
public:
    void leggi(const std::string& codice) { letta_ = LeggiLinguaClient(codice); }
    void nuova(const std::string& codice) const {
        workstation.run("VaBoDatiTemp", "create table LinguaClient (id int null, Lingua nvarchar(2) null)");
        workstation.run("VaBoDatiTemp", "insert into LinguaClient values (1, '" + codice + "')");
    }
    void expectAlive() const { EXPECT_FALSE(RsCondivisi(2).IsOpen()); }
    void reopen() { leggi(""); }
    support::Lines fields() const { return {LinguaCorrente, DbTemp.IsOpen() ? "open" : "closed"}; }
    support::Lines shown() const { return {letta_}; }
    /// Without a row it is Italian.
    support::Lines held() const {
        const std::string riga = temporaneo(support::allStored(workstation), "LinguaClient");
        return {riga == "none" ? "IT" : riga};
    }

private:
    std::string letta_ = "none";
};

support::Operation<Lingua> lingua(const std::string& presente, const std::string& codice, support::Lines una,
                                  support::Lines sempre) {
    return {.tables = {"VaBoDatiTemp.dbo.LinguaClient", "options"},
            .reach =
                [presente](Lingua& mondo) {
                    mondo.prepara();
                    NomeTerminale = support::kTerminalName;
                    if (!presente.empty()) {
                        mondo.nuova(presente);
                        mondo.leggi("");
                    }
                },
            .act = [codice](Lingua& mondo) { mondo.leggi(codice); },
            .once = std::move(una),
            .fromThere = std::move(sempre)};
}

constexpr const char* kSenzaRiga = "silent; rows of company 2, language none, program none; list right; fields done";

TEST(LinguaRifiuto, OfTheFirstReadGivesItalian) {
    const std::string senzaServer = "silent; rows before; list right; fields changed to IT";
    const std::string senzaTabella = "silent; rows before; list right; fields done";
    replay(lingua("", "",
                  inTurn({{1, senzaServer},
                          {1, "silent; rows of company 2, language IT, program none; list right; fields done"},
                          {1, senzaTabella},
                          {3, kSenzaRiga}}),
                  inTurn({{2, senzaServer}, {1, senzaTabella}, {3, kSenzaRiga}})));
}

// Where a row is refused only when it is sent, the column that the language is taken from holds what was to be stored.
TEST(LinguaRifiuto, OfTheFirstWriteGivesItalianOrWhatWasNotStored) {
    const std::string senzaServer = "silent; rows before; list right; fields changed to IT";
    const std::string senzaTabella = "silent; rows before; list right; fields changed to IT, open";
    const std::string senzaRiga =
        "silent; rows of company 2, language none, program none; list right; fields changed to IT, open";
    const std::string nonMessa = "silent; rows of company 2, language none, program none; list old; fields done";
    replay(lingua("", "FR",
                  inTurn({{1, senzaServer},
                          {1, "silent; rows of company 2, language FR, program none; list right; fields done"},
                          {1, senzaTabella},
                          {2, senzaRiga},
                          {1, nonMessa}}),
                  inTurn({{2, senzaServer}, {1, senzaTabella}, {2, senzaRiga}, {1, nonMessa}})));
}

TEST(LinguaRifiuto, OfAChangeGivesItalianOrTheOneBeforeOrWhatWasNotStored) {
    const std::string senzaServer = "silent; rows before; list old; fields changed to IT, closed";
    const std::string senzaRiga = "silent; rows before; list old; fields changed to IT";
    const std::string nonTenuta = "silent; rows before; list right; fields kept";
    const std::string nonMessa = "silent; rows before; list old; fields done";
    replay(lingua("EN", "FR",
                  inTurn({{1, senzaServer},
                          {1, "silent; rows of company 2, language FR, program none; list right; fields done"},
                          {1, support::kStored},
                          {1, senzaRiga},
                          {2, nonTenuta},
                          {1, nonMessa}}),
                  inTurn({{2, senzaServer}, {2, senzaRiga}, {2, nonTenuta}, {1, nonMessa}})));
}

} // namespace
} // namespace vabo
