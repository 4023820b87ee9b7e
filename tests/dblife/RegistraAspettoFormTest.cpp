#include "RegistraFormFixture.h"

#include <QAbstractItemView>
#include <QGroupBox>
#include <QLabel>
#include <QTest>

namespace vabo {
namespace {

using support::kCompany;

/// What the form shows, and how the keys move the focus.
class RegistraAspetto : public RegistraForm {
protected:
    std::string suggerimento(const char* nome) const { return gui.find(kForm, nome).toolTip().toStdString(); }
    std::string etichettaDi(const char* nome) const {
        for (const QLabel* etichetta : gui.form(kForm).findChildren<QLabel*>()) {
            if (etichetta->buddy() == &gui.find(kForm, nome)) {
                return etichetta->text().toStdString();
            }
        }
        return "nessuna";
    }
    void scegliFonte(const std::string& nome) {
        vaiA("cboDSNList");
        while (testo("cboDSNList") != nome) {
            gui.press(Qt::Key_Down);
        }
    }
};

TEST_F(RegistraAspetto, HasItsTitlesLabelsAndHints) {
    apri();
    EXPECT_EQ(gui.form(kForm).windowTitle(), "Registra Aziende Nei Dsn");
    EXPECT_EQ(gui.find<QGroupBox>(kForm, "fraStep3").title(), "Sql Srver");
    const std::string amministratore = "Consultare l'amministratore del Server SQL";
    const std::vector<std::vector<std::string>> attesi = {
        {"Nome_Odbc", "Fonte Odbc", "Se non è il Db principale evita \"Tlv_server\" che è utilizzato di default"},
        {"Nome_Az", "Nome Azienda", ""},
        {"cboDrivers", "Dri&ver:", amministratore},
        {"txtServer", "&Server:", "Nome del Server - Consultare l'amministratore di rete e del Server SQL"},
        {"txtDatabase", "Data&base:", ""},
        {"txtUID", "&ID utente:", amministratore},
        {"txtPWD", "&Password:", amministratore},
    };
    for (const auto& riga : attesi) {
        EXPECT_EQ(etichettaDi(riga[0].c_str()), riga[1]) << riga[0];
        EXPECT_EQ(suggerimento(riga[0].c_str()), riga[2]) << riga[0];
    }
    EXPECT_EQ(campo("txtPWD").echoMode(), QLineEdit::Password);
}

TEST_F(RegistraAspetto, EveryControlHasASpokenName) {
    apri();
    const std::vector<std::pair<const char*, const char*>> nomi = {
        {"cboDSNList", "Fonti dati"}, {"txtUID", "ID utente"},     {"txtPWD", "Password"},
        {"cboDrivers", "Driver"},     {"txtServer", "Server"},     {"txtDatabase", "Database"},
        {"Nome_Odbc", "Fonte Odbc"},  {"Nome_Az", "Nome Azienda"}, {"cmdCancel", "Registra"},
        {"Command1", "Chiudi"}};
    for (const auto& [nome, detto] : nomi) {
        EXPECT_EQ(gui.find(kForm, nome).accessibleName().toStdString(), detto) << nome;
    }
}

TEST_F(RegistraAspetto, OpensWithTheCompanysData) {
    apri();
    EXPECT_EQ(testo("Nome_Az"), companyName());
    EXPECT_EQ(testo("txtServer"), campi().Server);
    EXPECT_EQ(testo("txtDatabase"), kCompany);
    EXPECT_EQ(testo("txtUID"), campi().Utente);
    EXPECT_EQ(testo("txtPWD"), campi().Password);
    EXPECT_EQ(testo("cboDrivers"), "SQL Server");
    EXPECT_TRUE(elenco("cboDrivers").isEditable());
    EXPECT_EQ(testo("Nome_Odbc"), "Tlv_Server");
    EXPECT_EQ(NomeDsn, "Tlv_Server");
    for (const char* nome : {"txtUID", "txtPWD", "cboDrivers", "txtServer", "txtDatabase", "Nome_Odbc", "Nome_Az",
                             "cboDSNList", "cmdCancel", "Command1"}) {
        EXPECT_TRUE(abilitato(nome)) << nome;
    }
}

TEST_F(RegistraAspetto, OpensWithDefaultsWhereThereIsNoCompany) {
    NomeTerminale.clear();
    script.expectMessage("Caricare il nome del PC!");
    apri();
    EXPECT_EQ(testo("Nome_Az"), "Azienda");
    EXPECT_EQ(testo("txtServer"), "");
    EXPECT_EQ(testo("txtDatabase"), "VaboDati");
    EXPECT_EQ(testo("txtUID"), "");
    EXPECT_EQ(testo("txtPWD"), "");
    EXPECT_EQ(testo("cboDrivers"), "SQL Server");
    EXPECT_EQ(NomeDsn, "Tlv_Server");
}

TEST_F(RegistraAspetto, ListsTheDataSourcesBehindNone) {
    fonti.names = {"Zeta", "Tlv_server", "alfa"};
    apri();
    ASSERT_EQ(elenco("cboDSNList").count(), 4);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(elenco("cboDSNList").itemText(i).toStdString(),
                  (std::vector<std::string>{"(nessuno)", "Zeta", "Tlv_server", "alfa"}[static_cast<std::size_t>(i)]));
    }
    EXPECT_EQ(elenco("cboDSNList").currentIndex(), 0);
}

TEST_F(RegistraAspetto, ARegistryThatFailsListsNothingAndTellsNothing) {
    struct Rotto : platform::DataSources {
        std::vector<std::string> names() override { throw std::runtime_error("out of order"); }
        void registerDatabase(const std::string& /*name*/, const std::string& /*driver*/, bool /*silent*/,
                              const std::string& /*attributes*/) override {}
        std::int32_t configure(std::int16_t /*request*/, const std::string& /*driver*/,
                               const std::string& /*attributes*/) override {
            return 0;
        }
    };
    platform::setDataSources(std::make_unique<Rotto>());
    apri();
    EXPECT_EQ(elenco("cboDSNList").count(), 1);
    EXPECT_EQ(testo("cboDSNList"), "(nessuno)");
    EXPECT_EQ(testo("Nome_Odbc"), "Tlv_Server") << "the load goes on";
}

TEST_F(RegistraAspetto, ADataSourceLocksServerAndDriverAtWhatTheyShow) {
    fonti.names = {"Altra"};
    apri();
    scegliFonte("Altra");
    EXPECT_FALSE(abilitato("txtServer"));
    EXPECT_FALSE(abilitato("cboDrivers"));
    EXPECT_EQ(testo("txtServer"), campi().Server);
    EXPECT_EQ(testo("cboDrivers"), "SQL Server");
    EXPECT_EQ(testo("Nome_Odbc"), "Tlv_Server");
    for (const char* nome : {"txtUID", "txtPWD", "txtDatabase", "Nome_Odbc", "Nome_Az", "cmdCancel"}) {
        EXPECT_TRUE(abilitato(nome)) << nome;
    }
    gui.press(Qt::Key_Home);
    EXPECT_EQ(testo("cboDSNList"), "(nessuno)");
    EXPECT_TRUE(abilitato("txtServer"));
    EXPECT_TRUE(abilitato("cboDrivers"));
}

TEST_F(RegistraAspetto, EnterAndTabFollowOneChain) {
    const std::vector<std::pair<const char*, const char*>> passi = {
        {"txtUID", "txtPWD"},         {"txtPWD", "cboDrivers"},     {"cboDrivers", "txtServer"},
        {"txtServer", "txtDatabase"}, {"txtDatabase", "Nome_Odbc"}, {"Nome_Odbc", "Nome_Az"},
        {"Nome_Az", "cmdCancel"}};
    apri();
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab}) {
        for (const auto& [da, a] : passi) {
            premi(da, tasto);
            EXPECT_EQ(fuoco(), a) << da << " with key " << tasto;
        }
    }
}

TEST_F(RegistraAspetto, TheChainWaitsForNoLockedField) {
    fonti.names = {"Altra"};
    apri();
    scegliFonte("Altra");
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Tab}) {
        premi("txtPWD", tasto);
        EXPECT_EQ(fuoco(), "txtDatabase");
    }
}

TEST_F(RegistraAspetto, OutsideTheChainTabIsATabAndBackwardsEverywhere) {
    apri();
    EXPECT_EQ(fuoco(), "cboDSNList");
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(fuoco(), "txtUID");
    vaiA("cmdCancel");
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(fuoco(), "Command1");
    for (const char* nome : {"cmdCancel", "Nome_Az", "Nome_Odbc", "txtDatabase", "txtServer", "cboDrivers", "txtPWD",
                             "txtUID", "cboDSNList"}) {
        gui.press(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(fuoco(), nome);
    }
}

TEST_F(RegistraAspetto, GettingTheFocusSelectsTheWholeText) {
    apri();
    for (const char* nome : {"txtDatabase", "txtServer", "Nome_Odbc", "Nome_Az"}) {
        metti(nome, "uno due");
        vaiA("cboDSNList");
        vaiA(nome);
        EXPECT_EQ(campo(nome).selectedText(), "uno due") << nome;
    }
}

TEST_F(RegistraAspetto, MnemonicsReachTheirFields) {
    apri();
    const std::vector<std::pair<Qt::Key, const char*>> lettere = {
        {Qt::Key_V, "cboDrivers"}, {Qt::Key_S, "txtServer"}, {Qt::Key_B, "txtDatabase"},
        {Qt::Key_I, "txtUID"},     {Qt::Key_P, "txtPWD"},    {Qt::Key_F, "cboDSNList"}};
    for (const auto& [lettera, nome] : lettere) {
        gui.press(lettera, Qt::AltModifier);
        EXPECT_EQ(fuoco(), nome);
    }
}

TEST_F(RegistraAspetto, ADriverPickedLeadsToTheServer) {
    apri();
    vaiA("cboDrivers");
    elenco("cboDrivers").setEditText("qualcosa");
    gui.find(kForm, "txtServer").setEnabled(false);
    gui.press(Qt::Key_Down, Qt::AltModifier);
    QAbstractItemView* righe = elenco("cboDrivers").view();
    support::Gui::waitFor("the list of drivers", [&] { return righe->isVisible(); });
    QTest::keyClick(righe, Qt::Key_Return);
    support::Gui::handleEvents();
    EXPECT_EQ(testo("cboDrivers"), "SQL Server");
    EXPECT_TRUE(abilitato("txtServer"));
    EXPECT_EQ(fuoco(), "txtServer");
}

TEST_F(RegistraAspetto, AnotherDriverMayBeTyped) {
    apri();
    vaiA("cboDrivers");
    elenco("cboDrivers").lineEdit()->selectAll();
    gui.type("SQL");
    EXPECT_EQ(testo("cboDrivers"), "SQL") << "nothing completes it";
    gui.press(Qt::Key_Return);
    EXPECT_EQ(elenco("cboDrivers").count(), 1) << "nothing enters the list";
    EXPECT_EQ(fuoco(), "txtServer");
}

} // namespace
} // namespace vabo
