// The name of a commencement rule as its field gets the focus, and Enter there, which stores the rule.

#include "CondizioniForm.h"

namespace vabo {
namespace {

constexpr const char* kRifiutato = "Multiple-step operation generated errors. Check each status value.";

TEST_F(FormDecorrenze, ANewRuleGetsItsMonthsAloneAndTheUserTypesTheName) {
    apri();
    componi({"10", "25", "", "", "8", "12", ""});
    EXPECT_EQ(fuoco(), "Descrizione");
    EXPECT_EQ(testo("Descrizione"), " escluso Agosto  Dicembre");
    EXPECT_EQ(campo("Descrizione").selectedText(), " escluso Agosto  Dicembre");
    gui.type("Prova");
    invio();
    EXPECT_EQ(ultimaRegola(), (Riga{"Prova", "10", "25", "0", "0", "8", "12", "0"}));
    EXPECT_EQ(campi(), kRegolaVuota);
    EXPECT_EQ(fuoco(), "GiornoScadenza");
    EXPECT_EQ(righe(), 9) << "the list is read again";
}

TEST_F(FormDecorrenze, TwoDaysRebuildTheNameAndASecondFocusGivesTheSame) {
    apri();
    scegli(6);
    for (int i = 0; i < 3; ++i) {
        vaiA("Descrizione");
        EXPECT_EQ(testo("Descrizione"), "Sc.il 5 - 15 - 25 del mese escluso Agosto");
        vaiA("Mese1");
    }
    campo("GiornoScadenza3").setText("28");
    vaiA("Descrizione");
    EXPECT_EQ(testo("Descrizione"), "Sc.il 5 - 15 - 25 - 28 del mese escluso Agosto");
}

TEST_F(FormDecorrenze, TheNameOfARuleWithOneDayGrowsWithEachFocus) {
    apri();
    scegli(3);
    std::string atteso = "Fine mese escluso Agosto  Dicembre";
    for (int i = 0; i < 3; ++i) {
        vaiA("Descrizione");
        atteso += " del mese escluso Agosto  Dicembre";
        EXPECT_EQ(testo("Descrizione"), atteso);
        EXPECT_EQ(campo("Descrizione").selectedText().toStdString(), atteso);
        vaiA("Mese1");
    }
}

TEST_F(FormDecorrenze, AMonthOutOfRangeIsToldAndTheNameHasWhatComesAhead) {
    apri();
    scegli(5);
    campo("Mese1").setText("8");
    for (const char* mese : {"14", "-1", "99999"}) {
        campo("Mese2").setText(mese);
        vaiA("Mese3");
        script.expectMessage("Subscript out of range");
        invio();
        EXPECT_TRUE(script.allShown());
        EXPECT_EQ(fuoco(), "Descrizione");
        EXPECT_EQ(testo("Descrizione"), "Sc.il 10 - 25 del mese escluso Agosto");
        EXPECT_EQ(campo("Descrizione").selectedText().toStdString(), testo("Descrizione"));
    }
    invio();
    EXPECT_EQ(regola("IDDecorrenza = 5"),
              (Riga{"Sc.il 10 - 25 del mese escluso Agosto", "10", "25", "0", "0", "8", "99999", "0"}))
        << "it is stored all the same";
}

TEST_F(FormDecorrenze, TheThirteenthMonthHasNoName) {
    apri();
    componi({"", "", "", "", "13", "", ""});
    EXPECT_EQ(testo("Descrizione"), " escluso ");
    invio();
    EXPECT_EQ(ultimaRegola(), (Riga{" escluso ", "0", "0", "0", "0", "13", "0", "0"}));
}

TEST_F(FormDecorrenze, ThreeMonthsAreStoredAndAThirdWithoutASecondIsDropped) {
    apri();
    componi({"31", "", "", "", "7", "8", "12"});
    invio();
    EXPECT_EQ(ultimaRegola(), (Riga{" escluso Luglio  Agosto  Dicembre", "31", "0", "0", "0", "7", "8", "12"}));
    componi({"31", "", "", "", "7", "", "12"});
    EXPECT_EQ(testo("Descrizione"), " escluso Luglio  Dicembre");
    invio();
    EXPECT_EQ(ultimaRegola(), (Riga{" escluso Luglio  Dicembre", "31", "0", "0", "0", "7", "0", "0"}));
}

TEST_F(FormDecorrenze, APickedRuleIsChangedAndTheNextOneIsNew) {
    apri();
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab}) {
        scegli(5);
        vaiA("GiornoScadenza");
        gui.type(std::to_string(static_cast<int>(tasto) % 28 + 1));
        vaiA("Descrizione");
        gui.type("Nome");
        const support::StatementRecorder recorder;
        gui.press(tasto);
        EXPECT_EQ(recorder.texts().front(), " SELECT * from CondizioniPagamentoDecorrenza WHERE  iddecorrenza = 5");
        EXPECT_EQ(regola("IDDecorrenza = 5"),
                  (Riga{"Nome", std::to_string(static_cast<int>(tasto) % 28 + 1), "25", "0", "0", "0", "0", "0"}));
        EXPECT_EQ(campi(), kRegolaVuota);
    }
    EXPECT_EQ(quanti("CondizioniPagamentoDecorrenza"), 8);
    componi({"1", "", "", "", "", "", ""});
    gui.type("Altro");
    invio();
    EXPECT_EQ(quanti("CondizioniPagamentoDecorrenza"), 9);
}

TEST_F(FormDecorrenze, ARuleThatIsGoneIsAddedAgain) {
    apri();
    scegli(5);
    esegui("delete from CondizioniPagamentoDecorrenza where IDDecorrenza = 5");
    vaiA("Descrizione");
    invio();
    EXPECT_EQ(ultimaRegola(), (Riga{"Sc.il 10 - 25 del mese", "10", "25", "0", "0", "0", "0", "0"}));
    EXPECT_EQ(quanti("CondizioniPagamentoDecorrenza"), 8);
}

TEST_F(FormDecorrenze, AnEmptyNameStoresNothingInSilence) {
    apri();
    scegli(1);
    for (const char* vuoto : {"", " ", "0"}) {
        vaiA("Descrizione");
        campo("Descrizione").setText(vuoto);
        const support::StatementRecorder recorder;
        invio();
        EXPECT_EQ(recorder.texts(), Testi{}) << vuoto;
        EXPECT_EQ(fuoco(), "GiornoScadenza");
        EXPECT_EQ(testo("Descrizione"), vuoto) << "the fields stay";
        vaiA("Mese1");
    }
    EXPECT_EQ(regola("IDDecorrenza = 1")[0], "Data fattura");
}

TEST_F(FormDecorrenze, RangesAreNotChecked) {
    apri();
    componi({"45", "366", "-1", "99", "", "", ""});
    gui.type("Prova");
    invio();
    EXPECT_EQ(ultimaRegola(), (Riga{"Prova", "45", "366", "-1", "99", "0", "0", "0"}));
}

TEST_F(FormDecorrenze, HostileTextsInTheNameAreStoredAsTheyStand) {
    apri();
    for (const std::string& ostile :
         {std::string("\""), std::string("x'; delete from CondizioniPagamentoDecorrenza --"), std::string("/* x"),
          std::string("a;b"), std::string("\x01\x1b\x7f"), std::string("a\tb"), std::string(255, '\'')}) {
        SCOPED_TRACE(ostile.substr(0, 20));
        const int quante = quanti("CondizioniPagamentoDecorrenza");
        vaiA("Descrizione");
        campo("Descrizione").setText(ostile);
        invio();
        EXPECT_EQ(ultimaRegola()[0], ostile);
        EXPECT_EQ(quanti("CondizioniPagamentoDecorrenza"), quante + 1);
    }
    vaiA("Descrizione");
    campo("Descrizione").setText(std::string(4'000, 'x'));
    script.expectMessage(kRifiutato);
    invio();
    EXPECT_EQ(testo("Descrizione").size(), 4'000U);
    EXPECT_EQ(fuoco(), "Descrizione");
}

TEST_F(FormDecorrenze, HostileTextsInTheNumbersAreRefusedByTheirColumnsAndTold) {
    apri();
    for (const char* nome :
         {"GiornoScadenza", "GiornoScadenza1", "GiornoScadenza2", "GiornoScadenza3", "Mese1", "Mese2", "Mese3"}) {
        for (const std::string& ostile :
             {std::string("x"), std::string("'"), std::string("1; delete from stati"), std::string("\x01"),
              std::string("--"), std::string(4'000, '9'), std::string(4'000, 'x')}) {
            SCOPED_TRACE(ostile.substr(0, 20) + " in " + nome);
            vaiA("Descrizione");
            campo("Descrizione").setText("Prova");
            campo("Mese2").setText("1"); // or the third month isn't looked at
            campo(nome).setText(ostile);
            script.expectMessage(kRifiutato);
            invio();
            EXPECT_TRUE(script.allShown());
            EXPECT_EQ(testo(nome), ostile);
            campo(nome).setText("");
            vaiA("GiornoScadenza");
        }
    }
    EXPECT_EQ(quanti("CondizioniPagamentoDecorrenza"), 8);
}

TEST_F(FormDecorrenze, AHostileMonthIsToldWhenTheFocusReachesTheName) {
    const std::pair<std::string, const char*> casi[] = {{"agosto", "Type mismatch"},
                                                        {"'", "Type mismatch"},
                                                        {"1; delete from stati", "Type mismatch"},
                                                        {"--", "Type mismatch"},
                                                        {"\x01", "Type mismatch"},
                                                        {std::string(4'000, 'x'), "Type mismatch"},
                                                        {std::string(400, '9'), "Type mismatch"},
                                                        {"99999999999", "Overflow"}};
    apri();
    for (const auto& [mese, detto] : casi) {
        for (const char* nome : {"Mese1", "Mese2", "Mese3"}) {
            SCOPED_TRACE(mese.substr(0, 20) + " in " + nome);
            scegli(4);
            campo(nome).setText(mese);
            script.expectMessage(detto);
            vaiA("Descrizione");
            EXPECT_TRUE(script.allShown());
            EXPECT_EQ(testo("Descrizione"), "Sc.il 10 del mese del mese") << "what comes ahead of the month";
            EXPECT_EQ(testo(nome), mese);
            EXPECT_EQ(fuoco(), "Descrizione");
        }
    }
    EXPECT_EQ(regola("IDDecorrenza = 4"), (Riga{"Sc.il 10 del mese", "10", "0", "0", "0", "0", "0", "0"}));
}

TEST_F(FormDecorrenze, ARuleThatSomebodyElseHoldsIsToldAndASecondTryStoresIt) {
    apri();
    scegli(5);
    vaiA("Descrizione");
    gui.type("Nuovo nome");
    const Riga scritti = campi();
    {
        const auto altro = posto.engineSession(support::kCompany);
        const auto tenuta = altro->hold("select * from CondizioniPagamentoDecorrenza where IDDecorrenza = 5");
        script.expectMessage("Lock request time out period exceeded.");
        invio();
        EXPECT_TRUE(script.allShown());
    }
    EXPECT_EQ(campi(), scritti);
    EXPECT_EQ(fuoco(), "Descrizione");
    EXPECT_EQ(regola("IDDecorrenza = 5")[0], "Sc.il 10 - 25 del mese");
    invio();
    EXPECT_EQ(regola("IDDecorrenza = 5")[0], "Nuovo nome");
    EXPECT_EQ(campi(), kRegolaVuota);
}

TEST_F(FormDecorrenze, ARuleIsEnteredChangedAndLeftByKeyboardAlone) {
    apri();
    for (const char* giorno : {"10", "20", "", "", "8", "", ""}) {
        gui.type(giorno);
        gui.press(Qt::Key_Tab);
    }
    gui.type("Aaa");
    invio();
    gui.press(Qt::Key_Backtab, Qt::ShiftModifier);
    gui.press(Qt::Key_Backtab, Qt::ShiftModifier);
    ASSERT_EQ(fuoco(), "DataGrid1");
    gui.press(Qt::Key_Home, Qt::ControlModifier);
    gui.press(Qt::Key_Space);
    ASSERT_EQ(testo("Descrizione"), "Aaa");
    for (int i = 0; i < 7; ++i) {
        invio();
    }
    EXPECT_EQ(testo("Descrizione"), "Sc.il 10 - 20 del mese escluso Agosto");
    invio();
    EXPECT_EQ(ultimaRegola(), (Riga{"Sc.il 10 - 20 del mese escluso Agosto", "10", "20", "0", "0", "8", "0", "0"}));
    Riga indietro = {"Chiudi", "DataGrid1",       "Descrizione",     "Mese3",           "Mese2",
                     "Mese1",  "GiornoScadenza3", "GiornoScadenza2", "GiornoScadenza1", "GiornoScadenza"};
    for (const std::string& nome : indietro) {
        gui.press(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(fuoco(), nome);
    }
    QTest::keyClick(gui.form(kDecorrenze).windowHandle(), Qt::Key_C, Qt::AltModifier);
    support::Gui::waitFor("the form below", [this] { return gui.visibleForms() == "Avvio_Azienda"; });
}

TEST_F(FormDecorrenze, AListThatIsGoneAfterTheSaveIsTold) {
    apri();
    scegli(5);
    vaiA("Descrizione");
    int inviate = 0;
    {
        const support::SomebodyElse altro([&](const std::string& testo) {
            if (testo.starts_with(" select IDDecorrenza") && inviate++ == 0) {
                esegui("drop table CondizioniPagamentoDecorrenza");
            }
        });
        script.expectMessage("Invalid object name 'CondizioniPagamentoDecorrenza'.");
        invio();
    }
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(campi(), kRegolaVuota);
    EXPECT_EQ(fuoco(), "Descrizione") << "the event ended there";
}

} // namespace
} // namespace vabo
