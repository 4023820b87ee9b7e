// Both forms while a statement fails.

#include "CondizioniForm.h"
#include "locks/GuastoAPosto.h"
#include "session/LinguaClient.h"
#include "support/HeardBoxes.h"

namespace vabo {
namespace {

constexpr int kFinoAllaScrittura = 3; // statements of a save

// By place of the statement that fails as one of them is opened and filled and stored; nothing may hang or end.
TEST_F(FormCondizioni, WhateverStatementFailsOfTheOpeningNothingIsSaid) {
    LeggiLinguaClient("EN");
    int tutte = 0;
    {
        const GuastoAPosto conta;
        apri();
        tutte = conta.inviate();
    }
    gui.click(kCondizioni, "Chiudi");
    ASSERT_GE(tutte, 6);
    for (int posto = 1; posto <= tutte; ++posto) {
        SCOPED_TRACE(posto);
        {
            const GuastoAPosto guasto(posto);
            apri();
        }
        EXPECT_TRUE(gui.isVisible(kCondizioni));
        EXPECT_EQ(fuoco(), "IDDecorrenza");
        EXPECT_FALSE(pagina.control("ComboLingua").isVisible());
        gui.click(kCondizioni, "Chiudi");
    }
    {
        const GuastoAPosto guasto(1, GuastoAPosto::Durata::DaQui);
        apri();
    }
    EXPECT_EQ(righe(), 0);
    EXPECT_EQ(testo("Label21"), "Condizioni di pagamento") << "without the language it is Italian";
}

TEST_F(FormCondizioni, WhateverStatementFailsOfAPickTheTermShownIsWhollyTheOldOneOrTheNewOne) {
    apri();
    int tutte = 0;
    scegli(3);
    const Riga vecchia = campi();
    {
        const GuastoAPosto conta;
        scegli(14);
        tutte = conta.inviate();
    }
    const Riga nuova = campi();
    const Riga terza = condizione("IDPagamento = 3"), ultima = condizione("IDPagamento = 14");
    ASSERT_GE(tutte, 1);
    ASSERT_NE(vecchia, nuova);
    for (int posto = 1; posto <= tutte; ++posto) {
        SCOPED_TRACE(posto);
        scegli(3);
        const support::HeardBoxes scatole;
        {
            const GuastoAPosto guasto(posto);
            scegli(14);
        }
        EXPECT_EQ(scatole.texts, Testi{GuastoAPosto::kRifiuto});
        const bool resta = testo("IDPagamento") == "N. 3";
        EXPECT_EQ(campi(), resta ? vecchia : nuova);
        vaiA("Descrizione");
        invio();
        EXPECT_EQ(campi(), kVuota) << "it is stored";
        EXPECT_EQ(condizione("IDPagamento = 3"), terza);
        EXPECT_EQ(condizione("IDPagamento = 14"), ultima);
        scegli(3);
        {
            const GuastoAPosto guasto(posto);
            scegli(14);
        }
        scegli(14);
        EXPECT_EQ(campi(), nuova) << "a second try";
        EXPECT_EQ(scatole.texts.size(), 2U) << "the first one's";
    }
}

TEST_F(FormCondizioni, WhateverStatementFailsOfASaveIsToldAndASecondTryPutsItRight) {
    apri();
    const auto cambia = [&](const std::string& giorni) {
        vaiA("Chiudi");
        scegli(3);
        campo("Scadenza1").setText(giorni);
        vaiA("Descrizione");
    };
    cambia("31");
    int tutte = 0;
    {
        const GuastoAPosto conta;
        invio();
        tutte = conta.inviate();
    }
    ASSERT_GE(tutte, 5);
    for (int posto = 1; posto <= tutte; ++posto) {
        SCOPED_TRACE(posto);
        cambia("40");
        const Riga prima = campi();
        const support::HeardBoxes scatole;
        {
            const GuastoAPosto guasto(posto);
            invio();
        }
        EXPECT_EQ(scatole.texts, Testi{GuastoAPosto::kRifiuto});
        EXPECT_FALSE(RsCondivisi(1).IsOpen());
        const bool scritta = condizione("IDPagamento = 3")[4] == "40 60 90 0 0 0 0 0 0 0 0 0";
        EXPECT_TRUE(scritta || condizione("IDPagamento = 3")[4] == "31 60 90 0 0 0 0 0 0 0 0 0");
        EXPECT_EQ(scritta, posto > kFinoAllaScrittura);
        EXPECT_EQ(campi(), scritta ? kVuota : prima) << "the fields stay until the row is written";
        EXPECT_EQ(testo("IDPagamento"), scritta ? "" : "N. 3");
        EXPECT_EQ(fuoco(), "Descrizione");
        invio(); // once more in the same form
        EXPECT_EQ(condizione("IDPagamento = 3")[4], "40 60 90 0 0 0 0 0 0 0 0 0");
        EXPECT_EQ(quanti("CondizioniPagamento"), 14) << "and no second row";
        EXPECT_EQ(testo("IDPagamento"), "");
        EXPECT_EQ(scatole.texts.size(), 1U);
        gui.click(kCondizioni, "Chiudi");
        apri();
        cambia("31");
        invio();
        EXPECT_EQ(condizione("IDPagamento = 3")[4], "31 60 90 0 0 0 0 0 0 0 0 0");
        EXPECT_EQ(campi(), kVuota);
    }
}

TEST_F(FormDecorrenze, WhateverStatementFailsOfASaveIsToldAndASecondTryPutsItRight) {
    apri();
    const auto cambia = [&](const std::string& giorno) {
        vaiA("Chiudi");
        scegli(5);
        campo("GiornoScadenza").setText(giorno);
        vaiA("Descrizione");
    };
    cambia("11");
    int tutte = 0;
    {
        const GuastoAPosto conta;
        invio();
        tutte = conta.inviate();
    }
    ASSERT_GE(tutte, 3);
    for (int posto = 1; posto <= tutte; ++posto) {
        SCOPED_TRACE(posto);
        cambia("12");
        const Riga prima = campi();
        const support::HeardBoxes scatole;
        {
            const GuastoAPosto guasto(posto);
            invio();
        }
        EXPECT_EQ(scatole.texts, Testi{GuastoAPosto::kRifiuto});
        const bool scritta = regola("IDDecorrenza = 5")[1] == "12";
        EXPECT_TRUE(scritta || regola("IDDecorrenza = 5")[1] == "11");
        EXPECT_EQ(scritta, posto > kFinoAllaScrittura);
        EXPECT_EQ(campi(), scritta ? kRegolaVuota : prima) << "the fields stay until the row is written";
        EXPECT_EQ(fuoco(), "Descrizione");
        invio(); // once more in the same form
        EXPECT_EQ(regola("IDDecorrenza = 5")[1], "12");
        EXPECT_EQ(quanti("CondizioniPagamentoDecorrenza"), 8) << "and no second row";
        EXPECT_EQ(scatole.texts.size(), 1U);
        gui.click(kDecorrenze, "Chiudi");
        apri();
        cambia("11");
        invio();
        EXPECT_EQ(regola("IDDecorrenza = 5")[1], "11");
        EXPECT_EQ(campi(), kRegolaVuota);
    }
}

} // namespace
} // namespace vabo
