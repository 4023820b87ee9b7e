// The form of the company's data while statements are refused, and while another user has the row.

#include "fiscal/AziendaForm.h"
#include "kit/ApriScrivibile.h"
#include "locks/GuastoAPosto.h"
#include "support/HeardBoxes.h"

namespace vabo {
namespace {

TEST_F(AziendaForm, AtWhicheverStatementTheLoadFailsTheFormStandsAndNothingIsTold) {
    int tutte = 0;
    {
        const GuastoAPosto nessuno;
        apri();
        tutte = nessuno.inviate();
        chiudi();
    }
    ASSERT_EQ(tutte, 7); // the company, the terms, the towns, the states; both descriptions, the state's name
    for (const GuastoAPosto::Durata durata : {GuastoAPosto::Durata::Una, GuastoAPosto::Durata::DaQui}) {
        for (int posto = 1; posto <= tutte; ++posto) {
            SCOPED_TRACE(posto);
            const GuastoAPosto guasto(posto, durata);
            apri();
            EXPECT_TRUE(gui.isVisible("frmDatiAzienda"));
            EXPECT_EQ(testo("nomesocietà"), posto == 1 ? "" : "Associazione Aurora");
            EXPECT_EQ(testo("Banca"), posto == 1 ? "" : "Banca del Mattino");
            const auto fallita = [&](int quale) {
                return posto == quale || (durata == GuastoAPosto::Durata::DaQui && posto < quale);
            };
            for (const auto& [elenco, quale] : {std::pair("DCPagamento1", 2), {"DataCombo1", 3}, {"DataCombo2", 4}}) {
                EXPECT_EQ(pagina.combo(elenco).count() == 0, fallita(quale)) << elenco;
            }
            EXPECT_EQ(testo("DataCombo1") == "Seleziona", posto == 1);
            EXPECT_EQ(testo("DCPagamento2").empty(), posto == 1 || fallita(5));
            EXPECT_EQ(testo("DCPagamento1").empty(), posto == 1 || fallita(6));
            EXPECT_EQ(testo("DataCombo2") == "Seleziona", posto == 1 || fallita(7));
            chiudi();
        }
    }
}

TEST_F(AziendaForm, AtWhicheverStatementTheSaveFailsItIsToldTheFormStaysAndTheNextSaveStores) {
    int tutte = 0;
    apri();
    {
        const GuastoAPosto nessuno;
        salva();
        tutte = nessuno.inviate();
    }
    ASSERT_GE(tutte, 2);
    const Riga prima = tutto();
    for (int posto = 1; posto <= tutte; ++posto) {
        SCOPED_TRACE(posto);
        apri();
        metti("Banca", "Altra");
        script.expectMessage(GuastoAPosto::kRifiuto);
        {
            const GuastoAPosto guasto(posto);
            salva();
        }
        EXPECT_TRUE(script.allShown());
        EXPECT_TRUE(aperta());
        EXPECT_EQ(testo("Banca"), "Altra");
        EXPECT_EQ(tutto(), prima);
        salva();
        EXPECT_FALSE(aperta());
        EXPECT_EQ(colonna("Banca"), "Altra");
        esegui("update DatiAzienda set Banca = 'Banca del Mattino'");
    }
}

/// What the town's statements cost, where the one at this place fails.
struct Costo {
    Testi scatole;
    int inviate;
    std::string provincia;
};

TEST_F(AziendaForm, AtWhicheverStatementTheTownFailsItIsToldAndMayBeLeftAgain) {
    const std::string rifiuto = GuastoAPosto::kRifiuto;
    const std::vector<Costo> costi = {
        {{}, 3, "TO"},
        {{rifiuto, "Object variable or With block variable not set"}, 1, ""}, // the list on entry
        {{rifiuto}, 2, "TO"},                                                 // the state
        {{rifiuto}, 3, "TO"}};                                                // the list on leaving
    apri();
    for (int posto = 0; posto < static_cast<int>(costi.size()); ++posto) {
        SCOPED_TRACE(posto);
        const Costo& costo = costi[static_cast<std::size_t>(posto)];
        vaiA("nomesocietà");
        metti("statooprovincia", "");
        const support::HeardBoxes scatole;
        {
            const GuastoAPosto guasto(posto);
            vaiA("DataCombo1");
            vaiA("cap");
            EXPECT_EQ(guasto.inviate(), costo.inviate);
        }
        EXPECT_EQ(scatole.texts, costo.scatole);
        EXPECT_EQ(fuoco(), "cap");
        EXPECT_EQ(testi({"DataCombo1", "cap", "statooprovincia"}), (Riga{"Torino", "10121", costo.provincia}));
        vaiA("DataCombo1");
        vaiA("cap");
        EXPECT_EQ(testi({"DataCombo1", "cap", "statooprovincia"}), (Riga{"Torino", "10121", "TO"}));
        EXPECT_EQ(std::to_string(pagina.combo("DataCombo1").count()), valore("select count(*) from comuni"));
        EXPECT_EQ(scatole.texts, costo.scatole) << "the second time all is well";
    }
}

TEST_F(AziendaForm, WhatIsReadAheadOfAMissingColumnOfTheTownIsShown) {
    esegui("drop table comuni");
    esegui("create table comuni (des_comune nvarchar(50), COD_CAP nvarchar(5), IdStato int)");
    esegui("insert into comuni values ('Torino', '10121', 1)");
    apri();
    metti("cap", "99999");
    metti("statooprovincia", "XX");
    script.expectMessage("Item cannot be found in the collection corresponding to the requested name or ordinal.");
    vaiA("DataCombo1");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(testi({"cap", "statooprovincia"}), (Riga{"10121", "XX"}));
}

TEST_F(AziendaForm, ARowThatAnotherUserHoldsIsToldAndLaterStored) {
    const Riga prima = tutto();
    apri();
    metti("Banca", "Altra");
    ado::Connection altro;
    altro.Open(StringaAzienda);
    ado::Recordset presa;
    ApriScrivibile(presa, "Select * from DatiAzienda", altro);
    presa["Nome"] = "Presa";
    script.expectMessage("Lock request time out period exceeded.");
    salva();
    EXPECT_TRUE(script.allShown());
    EXPECT_TRUE(aperta());
    EXPECT_EQ(tutto(), prima);
    presa.CancelUpdate();
    presa.Close();
    salva();
    EXPECT_EQ(colonna("Banca"), "Altra");
}

TEST_F(AziendaForm, ATableThatIsGoneIsToldAndTheFormStays) {
    apri();
    esegui("drop table DatiAzienda");
    script.expectMessage("Invalid object name 'DatiAzienda'.");
    salva();
    EXPECT_TRUE(script.allShown());
    EXPECT_TRUE(aperta());
    premi("Command4");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

} // namespace
} // namespace vabo
