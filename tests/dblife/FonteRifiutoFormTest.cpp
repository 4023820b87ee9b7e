// The form of the data sources with each of its requests to the server refused.

#include "RegistraFormFixture.h"
#include "support/FormWorld.h"

namespace vabo {
namespace {

class FonteForm : public FormTest {
protected:
    void apri() {
        ApriForm(kForm, true);
        gui.waitForFront(kForm);
    }

    const support::TestWorkstation& posto = workstation;
};

/// With the real registry of data sources, and the registry of companies that a company's database may have.
class Fonti : public support::FormWorld<FonteForm> {
public:
    Fonti() : FormWorld(kForm) {
        NomeTerminale = support::kTerminalName;
        gui.forms().add("Avvio_Azienda", [] { return std::make_unique<controls::Form>("Avvio_Azienda"); });
        AzzeraPilaForm();
        workstation.run(support::kCompany, kCreaRegistro);
        workstation.run(support::kCompany, "insert into link_programma (NomeAzienda) values ('prima')");
    }
    using FonteForm::apri, FonteForm::gui;

    void vaiA(const char* nome) { gui.find(kForm, nome).setFocus(); }
    void premi() {
        gui.press(Qt::Key_Return);
        support::Gui::handleEvents();
    }
    void metti(const char* nome, const char* testo) { gui.find<QLineEdit>(kForm, nome).setText(testo); }

    void expectAlive() const {
        if (aperta()) {
            FormWorld::expectAlive();
        } else {
            EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
        }
    }
    support::Lines fields() const {
        return aperta() ? support::Lines{gui.focus(), gui.text(kForm, "Nome_Az")} : support::Lines{"closed"};
    }
    support::Lines shown() const { return {}; }
    support::Lines held() const { return {}; }
    static std::string half(const support::Stored& tutto) {
        const std::string& fonti = tutto.at("sources")[0][0];
        return "of company " + tutto.at("link_programma")[0][1] +
               (fonti.find("[Altra_fonte]") == std::string::npos ? "" : ", Altra_fonte");
    }

private:
    bool aperta() const { return gui.forms().isLoaded(kForm); }
};

TEST(FonteRifiuto, OfTheTestOfAServerWritesNothing) {
    const support::Lines esito = {"told Wrong connection; rows before; list right; fields kept"};
    replay(support::Operation<Fonti>{.tables = {"c:\\vabo\\indirizzoserver.txt", "c:\\vabo\\nomeserver.txt"},
                                     .reach =
                                         [](Fonti& form) {
                                             form.apri();
                                             form.posto.putFile("C:\\vabo\\NomeServer.txt", "altro\r\n");
                                             form.vaiA("txtServer");
                                         },
                                     .act = [](Fonti& form) { form.premi(); },
                                     .once = esito,
                                     .fromThere = esito});
}

// Behind the two tests what fails is skipped: the data sources are registered, and the form closes.
TEST(FonteRifiuto, OfARegistrationWritesNothingOrTheSourcesAlone) {
    const std::string resta = " non è valida; rows before; list right; fields kept";
    const support::Lines esiti = {"told La connessione \n\n" + resta,
                                  "told La connessione \nDatabase=VaBoDatiAurora;\n" + resta,
                                  "silent; rows of company prima, Altra_fonte; list right; fields done",
                                  "silent; rows of company prima, Altra_fonte; list right; fields done"};
    replay(support::Operation<Fonti>{.tables = {"link_programma", "sources", "c:\\vabo\\indirizzoserver.txt"},
                                     .reach =
                                         [](Fonti& form) {
                                             form.apri();
                                             form.metti("Nome_Az", "Altra");
                                             form.metti("Nome_Odbc", "Altra_fonte");
                                             form.vaiA("cmdCancel");
                                         },
                                     .act = [](Fonti& form) { form.premi(); },
                                     .once = esiti,
                                     .fromThere = esiti});
}

} // namespace
} // namespace vabo
