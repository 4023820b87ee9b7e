// The form of municipalities: names that are missing, taken or hostile.

#include "geography/ComuniFixture.h"

namespace vabo {
namespace {

class ComuniNomi : public ComuniForm {
protected:
    /// With a state chosen and a new municipality asked for.
    void apriPerUnaNuova() {
        apri();
        scrivi({"Palestrina", "RM", "00036", "Italia"});
        gui.click("frmComuni", "Command1");
    }
};

TEST_F(ComuniNomi, AMissingNameStoresNothingInSilenceAndEmptiesTheFields) {
    apriPerUnaNuova();
    const support::StatementRecorder recorder;
    for (const char* nome : {"", " ", "0", "000"}) {
        scrivi({nome, "RM", "00036", ""});
        EXPECT_EQ(campi(), kComuneVuoto) << nome;
        EXPECT_EQ(fuoco(), "DES_COMUNE");
    }
    EXPECT_EQ(recorder.texts(), Testi{});
}

TEST_F(ComuniNomi, ADuplicateIsToldAndTheFieldsAreEmptied) {
    apriPerUnaNuova();
    const int prima = quanti("Comuni");
    script.expectMessage(kComuneDoppio);
    const support::StatementRecorder recorder;
    scrivi({"AOSTA", "XX", "99999", "Kenya"});
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(recorder.texts(), Testi{kElencoComuniRiletto});
    EXPECT_EQ(campi(), kComuneVuoto);
    EXPECT_EQ(fuoco(), "DES_COMUNE");
    EXPECT_EQ(quanti("Comuni"), prima);
    EXPECT_EQ(pagina.rows("DataGrid1"), prima) << "no filter is left";
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    script.expectMessage(kComuneDoppio);
    scrivi({"Aosta", "AO", "11100", ""});
    EXPECT_TRUE(script.allShown()) << "the next one is still new";
}

TEST_F(ComuniNomi, ADuplicateLeavesTheFocusWhereItWent) {
    apriPerUnaNuova();
    script.expectMessage(kComuneDoppio);
    scrivi({"Aosta", "AO", "11100"});
    gui.click("frmComuni", "DES_PROVIN");
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(fuoco(), "DES_PROVIN");
}

TEST_F(ComuniNomi, BehindADuplicateTheStateIsTheOneThatWasChosenForIt) {
    apriPerUnaNuova();
    script.expectMessage(kComuneDoppio);
    scrivi({"Aosta", "AO", "11100", "Kenya"});
    scrivi({"Mombasa", "KE", "80100", ""});
    EXPECT_EQ(comune("Mombasa")[3], idStato("Kenya"));
    EXPECT_EQ(campi(), kComuneVuoto) << "the duplicate is forgotten";
}

TEST_F(ComuniNomi, RenamingAMunicipalityToAnothersNamePasses) {
    apriPerUnaNuova();
    scegli("Aosta");
    scrivi({"Bologna", "AO", "11100", ""});
    EXPECT_EQ(quanti("Comuni where DES_COMUNE = 'Bologna'"), 2);
}

TEST_F(ComuniNomi, AfterASaveTheNextMunicipalityIsNew) {
    apri();
    scegli("Aosta");
    scrivi({"Aosta", "AO", "11100", ""});
    script.expectMessage(kComuneDoppio);
    scrivi({"Aosta", "AO", "11100", ""});
    EXPECT_TRUE(script.allShown());
}

// Nothing has been chosen, stored or asked for by then.
TEST_F(ComuniNomi, TheFirstMunicipalityTypedBehindTheOpeningIsNotLookedFor) {
    apri();
    scrivi({"Aosta", "AO", "11100", "Italia"});
    EXPECT_EQ(quanti("Comuni where DES_COMUNE = 'Aosta'"), 2);
}

TEST_F(ComuniNomi, ANameThatSomebodyElseAddedMeanwhileIsNotSeen) {
    apriPerUnaNuova();
    esegui("insert into Comuni (DES_COMUNE) values ('Zagarolo')");
    scrivi({"Zagarolo", "RM", "00039", ""});
    EXPECT_EQ(quanti("Comuni where DES_COMUNE = 'Zagarolo'"), 2);
}

TEST_F(ComuniNomi, AnApostropheInANewNameIsRefusedByTheFilterAndTheFieldsStay) {
    apriPerUnaNuova();
    script.expectMessage(kFiltroRifiutato);
    const support::StatementRecorder recorder;
    scrivi({"Sant'Angelo Romano", "RM", "00010", ""});
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(recorder.texts(), Testi{});
    EXPECT_EQ(campi(), (Riga{"Sant'Angelo Romano", "RM", "00010", "Seleziona"}));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(pagina.rows("DataGrid1"), quanti("Comuni"));
    scrivi({"Sant Angelo Romano", "RM", "00010", ""});
    EXPECT_EQ(quanti("Comuni where DES_COMUNE = 'Sant Angelo Romano'"), 1) << "a name without it goes through";
}

TEST_F(ComuniNomi, AnApostropheInAChosenMunicipalitysNamePasses) {
    apri();
    scegli("L'Aquila");
    EXPECT_EQ(campi(), (Riga{"L'Aquila", "AQ", "67100", "Italia"}));
    scrivi({"L'Aquila d'Abruzzo", "AQ", "67100", ""});
    EXPECT_EQ(comune("L''Aquila d''Abruzzo")[0], "L'Aquila d'Abruzzo");
}

TEST_F(ComuniNomi, ADoubledApostropheIsOneToTheFilterAndTwoToTheTable) {
    apriPerUnaNuova();
    scrivi({"Sant''Angelo Romano", "RM", "00010", ""});
    EXPECT_EQ(comune("Sant''''Angelo Romano")[0], "Sant''Angelo Romano");
    script.expectMessage(kComuneDoppio);
    scrivi({"L''Aquila", "AQ", "67100", ""});
    EXPECT_TRUE(script.allShown());
}

TEST_F(ComuniNomi, ANameThatWidensTheFilterFindsOthers) {
    apriPerUnaNuova();
    script.expectMessage(kComuneDoppio);
    scrivi({"x' or des_comune='Aosta", "AO", "11100", ""});
    EXPECT_TRUE(script.allShown());
}

// Typed or pasted into one field of a new municipality; the others are sound.
class ComuniOstili : public ComuniNomi {
protected:
    void metti(const Riga& valori) const {
        ComuniForm::metti("DES_COMUNE", valori[0]);
        ComuniForm::metti("DES_PROVIN", valori[1]);
        ComuniForm::metti("COD_CAP", valori[2]);
        vaiA("DataCombo1");
    }
    Riga ultimo() const {
        return riga("select DES_COMUNE, DES_PROVIN, COD_CAP from Comuni where idautonumber = (select "
                    "max(idautonumber) from Comuni)");
    }
    static std::string primi(const std::string& testo, int quanti) {
        return QString::fromStdString(testo).left(quanti).toStdString();
    }

    const std::string lungo = std::string(4'000, '7');
    const Testi ostili = {"\"",        ";",         "a;b", "--", "/* x", "*/", "\x01\x1b\x7f", "a\tb",
                          "città ’ß€", "x' or 1=1", "%",   "*",  "[x]",  "_",  lungo};
};

TEST_F(ComuniOstili, ANameEntersTheFilterAndTheRowAsItIs) {
    apriPerUnaNuova();
    for (const std::string& nome : ostili) {
        SCOPED_TRACE(nome.substr(0, 20));
        const bool spezzaFiltro = nome.find('\'') != std::string::npos;
        const int prima = quanti("Comuni");
        if (spezzaFiltro) {
            script.expectMessage(kFiltroRifiutato);
        }
        metti({nome, "RM", "00036"});
        vaiA("DES_COMUNE");
        EXPECT_EQ(quanti("Comuni"), prima + (spezzaFiltro ? 0 : 1));
        EXPECT_EQ(testo("DES_COMUNE"), spezzaFiltro ? nome : "");
        if (!spezzaFiltro) {
            EXPECT_EQ(ultimo(), (Riga{nome == lungo ? "NULL" : nome, "RM", "00036"}));
        }
        gui.click("frmComuni", "Command1");
    }
}

TEST_F(ComuniOstili, AProvinceEntersTheRowAloneWithItsFirstTwoCharacters) {
    apriPerUnaNuova();
    int numero = 0;
    for (const std::string& provincia : ostili) {
        SCOPED_TRACE(provincia.substr(0, 20));
        const std::string nome = "Prova " + std::to_string(++numero);
        metti({nome, provincia, "00036"});
        vaiA("DES_COMUNE");
        EXPECT_EQ(ultimo(), (Riga{nome, primi(provincia, 2), "00036"}));
    }
}

TEST_F(ComuniOstili, APostalCodeThatIsNoNumberKeepsTheFocus) {
    apriPerUnaNuova();
    const support::StatementRecorder recorder;
    for (const std::string& cap : ostili) {
        SCOPED_TRACE(cap.substr(0, 20));
        metti({"Prova", "RM", cap});
        vaiA("DES_COMUNE");
        vaiA("DataCombo1");
        EXPECT_EQ(fuoco(), "COD_CAP");
        EXPECT_EQ(testo("COD_CAP"), cap);
    }
    EXPECT_EQ(recorder.texts(), Testi{});
}

TEST_F(ComuniOstili, APostalCodeOfManyDigitsIsCutForAsLongAsItIsANumber) {
    apriPerUnaNuova();
    const std::string cifre(300, '7');
    metti({"Prova", "RM", cifre});
    vaiA("DES_COMUNE");
    EXPECT_EQ(ultimo(), (Riga{"Prova", "RM", "77777"}));
}

// The combo's text enters the filter of the states once, at the start, when it is empty: nothing typed there reaches
// it.
TEST_F(ComuniNomi, WhateverIsTypedIntoTheStateIsNoState) {
    apri();
    for (const std::string& ostile :
         Testi{"'", "\"", ";", "x'; delete from stati --", "\x01\x7f", std::string(4'000, 'x')}) {
        SCOPED_TRACE(ostile.substr(0, 20));
        const support::StatementRecorder recorder;
        scrivi({"Prova", "RM", "00036", ostile});
        EXPECT_EQ(recorder.texts(), Testi{});
        EXPECT_EQ(campi(), (Riga{"Prova", "RM", "00036", "Seleziona"}));
    }
}

} // namespace
} // namespace vabo
