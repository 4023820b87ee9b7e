// The links of the local files with each request to their catalogs refused.

#include "ado/LinkFile.h"
#include "app/Forms.h"
#include "dblife/CollegaTabelleLinked.h"
#include "general_tables/AziendaAperta.h"
#include "support/Gui.h"
#include "support/Replays.h"

#include <QGuiApplication>

#include <gmock/gmock.h>

namespace vabo {
namespace {

using support::inTurn;

constexpr const char* kPrima = "ODBC;DATABASE=altra;DSN=Tlv_server";

class Collegamenti : public AziendaAperta {
public:
    using AziendaAperta::posto;

    Collegamenti() {
        app::registerForms(gui_.forms());
        CartellaFile = "C:\\Vabo\\Files";
        PercorsoFileLocale = "C:\\Vabo\\Files\\prova.mdb";
        for (const char* file : {"tlv_locale_ponte.mdb", "tlv_locale_sql.mdb", "Tlv_personalizzate.mdb"}) {
            posto.removeFile(std::string("C:\\Vabo\\Files\\") + file);
        }
    }
    void TestBody() override {}

    void file(const std::string& nome, const std::vector<std::pair<std::string, std::string>>& tabelle) const {
        ado::LinkFile nuovo = ado::LinkFile::create(posto.driveC().real("C:\\Vabo\\Files\\" + nome));
        for (const auto& [tipo, tabella] : tabelle) {
            nuovo.add(tipo, tabella, kPrima);
        }
    }
    void expectAlive() const { EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr); }
    void reopen() const {
        CollegaTabelle();
        support::Gui::handleEvents();
        EXPECT_THAT(half(support::allStored(posto)),
                    testing::EndsWith("dbo_bolla altra, dbo_conti AURORA; dbo_bolla AURORA"));
    }
    support::Lines fields() const {
        return {gui_.forms().isLoaded("FormRefreshLinks") ? "the progress" : "no progress"};
    }
    support::Lines shown() const { return {}; }
    support::Lines held() const { return {}; }
    /// Each link of the two files.
    static std::string half(const support::Stored& tutto) {
        const auto file = [&](const char* nome) {
            std::string testo;
            for (const auto& riga : tutto.at(nome)) {
                testo += (testo.empty() ? "" : ", ") + riga[1] + (riga[2] == kPrima ? " altra" : " AURORA");
            }
            return testo;
        };
        return file("c:\\vabo\\files\\prova.mdb") + "; " + file("c:\\vabo\\files\\tlv_personalizzate.mdb");
    }

private:
    support::DialogScript script_;
    mutable support::Gui gui_;
};

// A table whose kind can't be read counts as a link, one whose name can't be read as one to be left alone.
TEST(CollegamentiRifiuto, LeavesTheLinkAsItWasAndTheRunGoesOn) {
    const std::string resta = "; list right; fields kept";
    const std::string senzaFile =
        "silent; rows locale altra, dbo_bolla altra, dbo_conti altra; dbo_bolla AURORA" + resta;
    const std::string senzaSecondo =
        "silent; rows locale altra, dbo_bolla altra, dbo_conti AURORA; dbo_bolla altra" + resta;
    replay(support::Operation<Collegamenti>{
        .tables = {"c:\\vabo\\files\\prova.mdb", "c:\\vabo\\files\\tlv_personalizzate.mdb"},
        .reach =
            [](Collegamenti& mondo) {
                mondo.file("prova.mdb", {{"TABLE", "locale"}, {"LINK", "dbo_bolla"}, {"LINK", "dbo_conti"}});
                mondo.file("Tlv_personalizzate.mdb", {{"PASS-THROUGH", "dbo_bolla"}});
            },
        .act =
            [](Collegamenti& /*mondo*/) {
                CollegaTabelle();
                support::Gui::handleEvents();
            },
        .once = inTurn({{2, senzaFile},
                        {1, support::kStoredKept},
                        {1, senzaFile},
                        {1, "silent; rows locale AURORA, dbo_bolla altra, dbo_conti AURORA; dbo_bolla AURORA" + resta},
                        {5, support::kStoredKept},
                        {1, senzaFile},
                        {1, support::kStoredKept},
                        {1, senzaFile},
                        {3, support::kStoredKept},
                        {2, senzaSecondo},
                        {1, support::kStoredKept},
                        {1, senzaSecondo},
                        {2, support::kStoredKept},
                        {1, senzaSecondo},
                        {3, support::kStoredKept}}),
        .fromThere = inTurn({{13, "silent; rows before" + resta}, {10, senzaSecondo}, {3, support::kStoredKept}})});
}

} // namespace
} // namespace vabo
