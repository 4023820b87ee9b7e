#include "session/TreatForms.h"

#include "state/variabili.h"
#include "support/AzzeraVariabili.h"
#include "support/DialogScript.h"
#include "support/RecordedForms.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace vabo;
using Names = std::vector<std::string>;

class TreatForms : public testing::Test {
protected:
    TreatForms() {
        AzzeraVariabili();
        AzzeraPilaForm();
    }
    ~TreatForms() override { AzzeraVariabili(); }
    TreatForms(const TreatForms&) = delete;
    TreatForms& operator=(const TreatForms&) = delete;

    void expectStack(const Names& names) const {
        EXPECT_EQ(PilaForm, names);
        EXPECT_EQ(CimaForm, static_cast<double>(names.size()) - 1);
    }

    support::RecordedForms forms;
    support::DialogScript noBox;
};

struct Row {
    const char* name;
    const char* form;
    bool comesBack;
};

class TableOfNames : public TreatForms, public testing::WithParamInterface<Row> {};

TEST_P(TableOfNames, ShowsTheForm) {
    EXPECT_TRUE(ApriForm(GetParam().name, true));
    EXPECT_EQ(forms.calls(), Names{std::string("show ") + GetParam().form});
    expectStack({"Avvio_Azienda", GetParam().name});
}

TEST_P(TableOfNames, BringsTheFormBack) {
    ApriForm(GetParam().name, true);
    ApriForm("stati", true);
    forms.clear();
    ChiudiForm();
    if (GetParam().comesBack) {
        EXPECT_EQ(forms.calls(), Names{std::string("makeVisible ") + GetParam().form});
        expectStack({"Avvio_Azienda", GetParam().name});
    } else {
        EXPECT_EQ(forms.calls(), Names{"makeVisible Avvio_Azienda"});
        expectStack({"Avvio_Azienda"});
    }
}

INSTANTIATE_TEST_SUITE_P(
    TreatForms, TableOfNames,
    testing::Values(Row{"caricasedecentrale", "caricasedecentrale", true},
                    Row{"CondizioniPagamento", "CondizioniPagamento", true},
                    Row{"CondizioniPagamentoDecorrenza", "CondizioniPagamentoDecorrenza", true},
                    Row{"FormRegistraAziendeNeiDns", "FormRegistraAziendeNeiDns", true},
                    Row{"frmcomuni", "frmComuni", true}, Row{"frmDatiAzienda", "frmDatiAzienda", true},
                    Row{"I_Iva_sezionali", "I_Iva_sezionali", true},
                    Row{"IndirizzoVaBoSuServer", "IndirizzoVaboSuServer", true},
                    Row{"IndirizzoVaboSuServer", "IndirizzoVaboSuServer", false}, Row{"Login", "Login", true},
                    Row{"Scegli_progetto_4", "Scegli_progetto_4", true}, Row{"Scegli_sede_Pd", "Scegli_sede_Pd", true},
                    Row{"Avvio_Morlan", "Avvio_Morlan", true}, Row{"stati", "stati", true},
                    Row{"TabelleBustePaga", "TabelleBustePaga", true}),
    [](const auto& test) { return std::string(test.param.name); });

class OtherName : public TreatForms, public testing::WithParamInterface<const char*> {};

TEST_P(OtherName, ResetsTheStackAndShowsTheConsole) {
    ApriForm("Avvio_Morlan", true);
    forms.clear();
    EXPECT_TRUE(ApriForm(GetParam(), true));
    EXPECT_EQ(forms.calls(), Names{"show Avvio_Azienda"});
    expectStack({"Avvio_Azienda"});
}

TEST_P(OtherName, ResetsTheStackWithoutRememberingToo) {
    ApriForm("Avvio_Morlan", true);
    forms.clear();
    ApriForm(GetParam(), false);
    EXPECT_EQ(forms.calls(), Names{"show Avvio_Azienda"});
    expectStack({"Avvio_Azienda"});
}

INSTANTIATE_TEST_SUITE_P(TreatForms, OtherName,
                         testing::Values("frmComuni", "Avvio_Azienda", "avvio_azienda", "About", "login", "Stati", "",
                                         "stati ", "Avvio"));

TEST_F(TreatForms, WithoutRememberingTheStackStays) {
    ApriForm("Avvio_Morlan", true);
    forms.clear();
    ApriForm("stati", false);
    EXPECT_EQ(forms.calls(), Names{"show stati"});
    expectStack({"Avvio_Azienda", "Avvio_Morlan"});
}

TEST_F(TreatForms, TheUnloadOfAFormNotRememberedPopsTheOneBelow) {
    ApriForm("Avvio_Morlan", true);
    ApriForm("stati", false);
    forms.clear();
    ChiudiForm();
    EXPECT_EQ(forms.calls(), Names{"makeVisible Avvio_Azienda"});
    expectStack({"Avvio_Azienda"});
}

TEST_F(TreatForms, FormsComeBackInTheirOrder) {
    ApriForm("frmDatiAzienda", true);
    ApriForm("CondizioniPagamento", true);
    ApriForm("CondizioniPagamentoDecorrenza", true);
    expectStack({"Avvio_Azienda", "frmDatiAzienda", "CondizioniPagamento", "CondizioniPagamentoDecorrenza"});
    forms.clear();
    ChiudiForm();
    ChiudiForm();
    ChiudiForm();
    EXPECT_EQ(forms.calls(),
              (Names{"makeVisible CondizioniPagamento", "makeVisible frmDatiAzienda", "makeVisible Avvio_Azienda"}));
    expectStack({"Avvio_Azienda"});
}

TEST_F(TreatForms, ClosingOnAStackOfOneLeavesTheConsole) {
    ChiudiForm();
    EXPECT_EQ(forms.calls(), Names{"makeVisible Avvio_Azienda"});
    expectStack({"Avvio_Azienda"});
}

TEST_F(TreatForms, ClosingOnAStackNeverFilledBringsTheConsole) {
    AzzeraVariabili();
    ChiudiForm();
    EXPECT_EQ(forms.calls(), Names{"makeVisible Avvio_Azienda"});
    expectStack({"Avvio_Azienda"});
}

TEST_F(TreatForms, TheFirstFormOfTheRunMayBeTheConsole) {
    AzzeraVariabili();
    ApriForm("Avvio_Azienda", true);
    EXPECT_EQ(forms.calls(), Names{"show Avvio_Azienda"});
    expectStack({"Avvio_Azienda"});
}

TEST_F(TreatForms, AFormThatDoesNotExistIsNotRemembered) {
    forms.miss("frmDatiAzienda");
    EXPECT_FALSE(ApriForm("frmDatiAzienda", true));
    expectStack({"Avvio_Azienda"});
    EXPECT_TRUE(ApriForm("Avvio_Morlan", true));
    expectStack({"Avvio_Azienda", "Avvio_Morlan"});
}

/// A host whose forms can't be brought back.
class FailingForms : public support::RecordedForms {
public:
    bool makeVisible(std::string_view name) override {
        RecordedForms::makeVisible(name);
        throw std::runtime_error("no window for it");
    }
};

TEST_F(TreatForms, AFormThatCanNotBeBroughtBackIsPassedOver) {
    FailingForms failing;
    PilaForm = {"Avvio_Azienda", "Avvio_Morlan", "stati"};
    CimaForm = 2;
    EXPECT_NO_THROW(ChiudiForm());
    expectStack({"Avvio_Azienda", "Avvio_Morlan"});
    EXPECT_NO_THROW(ChiudiForm());
    expectStack({"Avvio_Azienda"});
    EXPECT_EQ(failing.calls(), (Names{"makeVisible Avvio_Morlan", "makeVisible Avvio_Azienda"}));
    platform::setFormHost(&forms);
}

TEST_F(TreatForms, FormInCimaLooksAtTheTopAlone) {
    ApriForm("frmDatiAzienda", true);
    ApriForm("CondizioniPagamento", true);
    EXPECT_TRUE(FormInCima("CondizioniPagamento"));
    EXPECT_TRUE(FormInCima("condizionipagamento"));
    EXPECT_TRUE(FormInCima("CONDIZIONIPAGAMENTO"));
    EXPECT_FALSE(FormInCima("frmDatiAzienda"));
    EXPECT_FALSE(FormInCima("Avvio_Azienda"));
    EXPECT_FALSE(FormInCima(""));
    EXPECT_EQ(Appoggio, "CondizioniPagamento");
}

TEST_F(TreatForms, FormInCimaOnAStackNeverFilledIsTheEmptyName) {
    AzzeraVariabili();
    EXPECT_FALSE(FormInCima("Avvio_Azienda"));
    EXPECT_EQ(Appoggio, "");
}

TEST_F(TreatForms, AFormGivesWayToTheOneThatItsCommandOpens) {
    ApriDa("Avvio_Azienda", "stati");
    EXPECT_EQ(forms.calls(), (Names{"show stati", "hide Avvio_Azienda"}));
    expectStack({"Avvio_Azienda", "stati"});
}

TEST_F(TreatForms, AFormStaysWhereTheOneThatItsCommandOpensIsNotBuilt) {
    forms.miss("stati");
    ApriDa("Avvio_Azienda", "stati");
    EXPECT_EQ(forms.calls(), Names{"show stati"});
    expectStack({"Avvio_Azienda"});
}

} // namespace
