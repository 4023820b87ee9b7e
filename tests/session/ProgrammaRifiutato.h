#pragma once

#include "ado/Conversions.h"
#include "session/FormFixture.h"
#include "support/Replays.h"

#include <QGuiApplication>

namespace vabo {

/// The program's forms from the start on; whatever is refused, one of them is in sight or the process has ended. The
/// terminal's company is the second one, so that a company that gives way to the first one shows.
class Programma : public FormTest {
public:
    using FormTest::control;
    using FormTest::gui;
    using FormTest::script;
    using FormTest::workstation;

    /// `primo` is the form that begins once more at the end of each run.
    explicit Programma(const char* primo = "About") : primo_(primo) {
        NomeTerminale.clear();
        setTerminal(support::kTerminalName, 2);
    }
    void TestBody() override {}

    /// Without the links of the local files, which have replays of their own, and with a temporary database.
    void prepara() const {
        workstation.run("master", "CREATE DATABASE [VaBoDatiTemp]");
        for (const char* file : {"tlv_locale_ponte.mdb", "tlv_locale_sql.mdb", "Tlv_personalizzate.mdb"}) {
            workstation.removeFile(std::string("C:\\Vabo\\Files\\") + file);
        }
    }
    void mostra(const char* form) {
        esegui([&] { gui.forms().show(form); });
    }
    void esegui(const std::function<void()>& passo) {
        finito_ = end.endedBy([&] {
            passo();
            support::Gui::handleEvents();
        });
    }
    void avvia() {
        mostra("Avvio");
        gui.waitForFront("About");
    }
    void scrivi(const char* campo, const char* testo) {
        esegui([&] {
            gui.typeInto("About", campo, testo);
            gui.press(Qt::Key_Return);
        });
    }

    void expectAlive() const {
        EXPECT_TRUE(finito_ || !gui.visibleForms().empty());
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        if (DbAzienda.IsOpen()) {
            EXPECT_EQ(aperto(), NomeDatabase);
        }
    }
    /// The process anew: only what is stored is left.
    void reopen() {
        for (const char* form : {"FormRegistraAziendeNeiDns", "Login", "Avvio_Azienda", "About", "Avvio"}) {
            if (gui.forms().isLoaded(form)) {
                gui.forms().unload(form);
            }
        }
        support::Gui::handleEvents();
        AzzeraVariabili();
        mostra(primo_);
        EXPECT_FALSE(finito_);
        EXPECT_EQ(gui.visibleForms(), "About");
    }

    support::Lines fields() const { return {finito_ ? "ended" : gui.visibleForms(), aperto(), LinguaCorrente}; }
    /// The companies that the forms name.
    support::Lines shown() const {
        support::Lines nomi;
        for (const char* form : {"Avvio", "About"}) {
            const bool nomina = !finito_ && gui.forms().isLoaded(form) && gui.form(form).findChild<QLabel*>("Label1");
            if (nomina) {
                nomi.push_back(gui.text(form, "Label1"));
            }
        }
        return nomi;
    }
    /// The company of the terminal's row, as often.
    support::Lines held() const { return support::Lines(shown().size(), "DataBase :   " + aziendaDelTerminale()); }
    /// The company of the terminal, the language and the program that the start records.
    static std::string half(const support::Stored& tutto) {
        std::string azienda = "none";
        for (const auto& riga : tutto.at("vabodatiazienda.dbo.link_programmaTerminale")) {
            azienda = riga[1] == support::kTerminalName ? riga[2] : azienda;
        }
        return "of company " + azienda + ", language " + temporaneo(tutto, "LinguaClient") + ", program " +
               temporaneo(tutto, "Version");
    }

    const support::TestWorkstation& posto = workstation;

protected:
    /// The value in the only row of a table of the temporary database.
    static std::string temporaneo(const support::Stored& tutto, const std::string& tabella) {
        const auto righe = tutto.find(std::string(support::kTemporaryDatabase) + ".dbo." + tabella);
        return righe == tutto.end() || righe->second.empty() ? "none" : righe->second[0][1];
    }
    bool finito() const { return finito_; }
    bool consoleAperta() const { return !finito_ && gui.forms().isLoaded("Avvio_Azienda"); }
    std::string aziendaDelTerminale() const {
        const Rows righe = workstation.rows(support::kControlDatabase,
                                            "select NomeAzienda from link_programma where id in (select ultimo from "
                                            "link_programmaTerminale where Nometerminale = 'POSTO_7')");
        return righe.empty() ? "" : righe[0][0];
    }

private:
    /// The database behind the connection of the company.
    static std::string aperto() {
        if (!DbAzienda.IsOpen()) {
            return "no company";
        }
        ado::Recordset nome;
        nome.Open("select db_name() as nome", DbAzienda);
        return ado::toText(nome["nome"]);
    }

    const char* primo_;
    bool finito_ = false;
};

/// What the console shows of the open company.
class ProgrammaConConsole : public Programma {
public:
    /// The company that it says is open.
    support::Lines shown() const {
        return consoleAperta() ? support::Lines{gui.text("Avvio_Azienda", "aziendaAperta")} : support::Lines{};
    }
    support::Lines held() const { return support::Lines(shown().size(), aziendaDelTerminale()); }
    support::Lines fields() const {
        support::Lines tutti = Programma::fields();
        tutti.push_back(gui.forms().isLoaded("Avvio_Azienda")
                            ? gui.find<controls::DataCombo>("Avvio_Azienda", "DataCombo1").Text()
                            : "no console");
        return tutti;
    }
};

} // namespace vabo
