// The forms of the locks while one statement takes long.

#include "ado/WhileWaiting.h"
#include "locks/ProgettoForm.h"
#include "locks/SedeForm.h"

#include <QTimer>

#include <chrono>
#include <future>
#include <thread>

namespace vabo {
namespace {

using libro::alle;
using libro::Libro;

/// A lock whose closing pass waits for another program, which writes the ledger until the form has been drawn some
/// times.
template<typename Form>
class Attesa : public Form {
protected:
    void corri(const std::function<void()>& aOgniDisegno = [] {}) {
        std::promise<void> basta;
        std::future<void> bastato = basta.get_future();
        std::jthread altro;
        Disegni disegni(this->gui.form(this->form), [&](int volte) {
            if (!altro.joinable() || volte > kAbbastanza) {
                return;
            }
            aOgniDisegno();
            if (volte == kAbbastanza) {
                basta.set_value();
            }
        });
        QTimer scoperta; // as where other windows pass over it
        QObject::connect(&scoperta, &QTimer::timeout, [this] { this->gui.form(this->form).update(); });
        const support::SomebodyElse chiunque([&](const std::string& inviata) {
            corse += inviata.starts_with("update partitadoppia set definito =0") ? 1 : 0;
            if (altro.joinable() || !inviata.starts_with("update partitadoppia set definito =-1 ")) {
                return;
            }
            this->scrivi("begin transaction; update partitadoppia set Descrizione = Descrizione");
            disegni.volte = 0;
            scoperta.start(1);
            altro = std::jthread([&] {
                inTempo = bastato.wait_for(std::chrono::seconds(3)) == std::future_status::ready;
                this->scrivi("commit transaction");
            });
        });
        this->premi("Command1");
        ASSERT_TRUE(altro.joinable()) << "the closing pass didn't come";
        altro.join();
    }

    static constexpr int kAbbastanza = 4;
    bool inTempo = false; ///< the form was drawn that often while the statement waited
    int corse = 0;
    const Libro righe = {{.id = 1, .transazione = alle("2024-05-02"), .seziva = 1},
                         {.id = 2, .numero = 2, .transazione = alle("2023-05-02")},
                         {.id = 3, .numero = 3, .transazione = alle("2024-05-02"), .report = {}, .definito = -1}};
};

class ProjectsWait : public Attesa<ProjectForm> {
protected:
    void scegli() {
        metti(righe);
        apri();
        prendi(kProgetto);
    }
    void aspettaErrore() {}
    std::vector<std::string> atteso() const {
        return testi(dopoIlProgetto(righe, kProgetto, alle("2024-03-31"), alle(kBilancio), contiDelCampione()));
    }
};

class BranchsWait : public Attesa<BranchForm> {
protected:
    void scegli() {
        metti(righe);
        apri();
        prendi(kSede);
        script.expectQuestion(domanda("31/03/2024"), true);
    }
    void aspettaErrore() { script.expectMessage("Invalid object name 'partitadoppia'."); }
    std::vector<std::string> atteso() const {
        return testi(
            dopoLaSede(righe, kSede, alle("2024-03-31"), alle(kBilancio), alle("2024-01-01"), contiDelCampione()));
    }
};

template<typename Lock>
class LockThatWaits : public Lock {};
using Locks = testing::Types<ProjectsWait, BranchsWait>;
TYPED_TEST_SUITE(LockThatWaits, Locks);

TYPED_TEST(LockThatWaits, IsDrawnDuringOneStatement) {
    this->scegli();
    this->corri();
    EXPECT_TRUE(this->inTempo);
    EXPECT_EQ(this->letto(), this->atteso());
    this->aspettaVuota();
}

TYPED_TEST(LockThatWaits, DropsWhatTheUserDoesDuringOneStatement) {
    this->scegli();
    this->corri([this] {
        EXPECT_TRUE(this->barra().isVisible());
        EXPECT_FALSE(this->gui.form(this->form).isEnabled());
        this->insisti();
    });
    support::Gui::handleEvents();
    EXPECT_EQ(this->corse, 1);
    EXPECT_EQ(this->gui.visibleForms(), this->form);
    EXPECT_FALSE(this->elenco().view()->isVisible());
    EXPECT_EQ(this->letto(), this->atteso());
    this->aspettaVuota();
}

TYPED_TEST(LockThatWaits, DoesSoDuringItsRunAlone) {
    this->scegli();
    EXPECT_FALSE(ado::isWaitingUsed());
    {
        const support::SomebodyElse chiunque([](const std::string& inviata) {
            if (inviata.find("partitadoppia") != std::string::npos) {
                EXPECT_TRUE(ado::isWaitingUsed()) << inviata;
            }
        });
        this->premi("Command1");
    }
    EXPECT_FALSE(ado::isWaitingUsed());
}

TYPED_TEST(LockThatWaits, DoesSoNoMoreAfterARunThatFails) {
    this->scegli();
    this->scrivi("drop table partitadoppia");
    this->aspettaErrore();
    this->premi("Command1");
    EXPECT_FALSE(ado::isWaitingUsed());
}

} // namespace
} // namespace vabo
