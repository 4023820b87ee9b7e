// The two locks while the server goes: the project's skips what fails, the branch's tells it.

#include "locks/BlocchiForm.h"
#include "session/GuastoFixture.h"
#include "support/HeardBoxes.h"
#include "support/OneEvent.h"

#include <QElapsedTimer>

namespace vabo {
namespace {

using libro::alle;
using libro::Libro;
using Testi = std::vector<std::string>;

class GuastoBlocchi : public BlocchiForm {
protected:
    using BlocchiForm::BlocchiForm;

    /// By the way that the pointer files tell now.
    void riprendiAzienda() {
        DbAzienda.Close();
        StringaAzienda = ConnessioneAzienda() + ";";
        DbAzienda.Open(StringaAzienda);
    }
    /// Ahead of the statement of that number the server goes; the boxes that come meanwhile, Yes to the question.
    void corri(int fatale, Guasto guastoQui) {
        int inviate = 0;
        const support::SomebodyElse altro([&](const std::string& /*testo*/) {
            if (++inviate == fatale) {
                guasto.avviene(guastoQui);
            }
        });
        support::inOneEvent([this] { premi("Command1"); });
        tutte = inviate;
    }

    ServerGuasto guasto{posto};
    int tutte = 0;
};

const Libro kRighe = {{.id = 1, .numero = 1, .seziva = 1},
                      {.id = 2, .numero = 1, .report = {}, .progetto = 10000004, .competenza = 5},
                      {.id = 3, .numero = 2, .transazione = alle("2024-05-02"), .definito = -1}};

class GuastoProgetto : public GuastoBlocchi {
protected:
    GuastoProgetto() : GuastoBlocchi("Scegli_progetto_4", "iddateend") { riprendiAzienda(); }
    void scegli() {
        prendi(kProgetto);
        digita("31/03/2024");
    }
    const Testi atteso =
        testi(dopoIlProgetto(kRighe, kProgetto, alle("2024-03-31"), alle(kBilancio), contiDelCampione()));
};

TEST_F(GuastoProgetto, AtWhateverStatementTheServerEndsNothingIsSaidAndASecondRunPutsItRight) {
    const support::HeardBoxes scatole;
    metti(kRighe);
    apri();
    scegli();
    corri(0, Guasto::Spento);
    ASSERT_EQ(letto(), atteso);
    const int quante = tutte;
    ASSERT_GT(quante, 40);
    for (int fatale = 1; fatale <= quante; fatale += 3) {
        SCOPED_TRACE(fatale);
        metti(kRighe);
        scegli();
        corri(fatale, Guasto::Spento);
        aspettaVuota();
        guasto.ripara();
        scegli();
        corri(0, Guasto::Spento);
        ASSERT_EQ(letto(), atteso);
    }
    EXPECT_EQ(scatole.texts, Testi{});
}

/// The user waits once, not once a statement.
TEST_F(GuastoProgetto, AServerThatFallsSilentIsWaitedForOnceInARun) {
    const support::HeardBoxes scatole;
    Libro righe;
    for (int id = 1; id <= 30; ++id) {
        righe.push_back({.id = id, .numero = id, .seziva = 1});
    }
    metti(righe);
    apri();
    scegli();
    corri(0, Guasto::Spento);
    const int ultime = tutte - 20; // in the middle of the rows
    metti(righe);
    scegli();
    QElapsedTimer tempo;
    tempo.start();
    corri(ultime, Guasto::Gelato);
    constexpr qint64 kUnAttesa = 10'000; // one second, and as long again for the answer to its cancel
    EXPECT_LT(tempo.elapsed(), kUnAttesa);
    aspettaVuota();
    guasto.ripara();
    scegli();
    corri(0, Guasto::Spento);
    EXPECT_EQ(letto(),
              testi(dopoIlProgetto(righe, kProgetto, alle("2024-03-31"), alle(kBilancio), contiDelCampione())));
    EXPECT_EQ(scatole.texts, Testi{});
}

/// Yes to every question.
class GuastoSede : public GuastoBlocchi {
protected:
    GuastoSede() : GuastoBlocchi("Scegli_sede_Pd", "DataInizio") { riprendiAzienda(); }
    const Testi atteso =
        testi(dopoLaSede(kRighe, kSede, alle("2024-03-31"), alle(kBilancio), alle("2024-01-01"), contiDelCampione()));
    struct Consenso : platform::Dialogs {
        explicit Consenso(Testi& testi) : testi(testi) {}
        void message(const std::string& testo, platform::Icon /*icon*/) override { testi.push_back(testo); }
        bool question(const std::string& /*testo*/) override { return true; }
        bool confirm(const std::string& /*testo*/) override { return true; }
        std::string input(const std::string&, const std::string&, const std::string&) override { return {}; }
        std::string folder(const std::string&) override { return {}; }
        Testi& testi;
    };
    Testi dette;
};

TEST_F(GuastoSede, AtWhateverStatementTheServerEndsItIsToldOnceAndASecondRunPutsItRight) {
    platform::setDialogs(std::make_unique<Consenso>(dette));
    metti(kRighe);
    apri();
    prendi(kSede);
    digita("31/03/2024");
    corri(0, Guasto::Spento);
    ASSERT_EQ(letto(), atteso);
    const int quante = tutte;
    int taciute = 0;
    for (int fatale = 1; fatale <= quante; fatale += 3) {
        SCOPED_TRACE(fatale);
        metti(kRighe);
        prendi(kSede);
        digita("31/03/2024");
        dette.clear();
        corri(fatale, Guasto::Spento);
        EXPECT_LE(dette.size(), 1U);
        taciute += dette.empty() ? 1 : 0;
        EXPECT_TRUE(gui.form(form).isEnabled());
        EXPECT_FALSE(barra().isVisible());
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        guasto.ripara();
        riprendiAzienda();
        prendi(kSede);
        digita("31/03/2024");
        corri(0, Guasto::Spento);
        ASSERT_EQ(letto(), atteso);
    }
    EXPECT_EQ(taciute, 0) << "a branch isn't half locked in silence";
    platform::setDialogs(nullptr);
}

} // namespace
} // namespace vabo
