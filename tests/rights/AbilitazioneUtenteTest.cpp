#include "rights/AbilitazioneUtente.h"

#include "ado/Error.h"
#include "support/DialogScript.h"
#include "support/RecordedForms.h"
#include "support/StatementRecorder.h"
#include "support/TestWorkstation.h"

#include <gtest/gtest.h>

namespace {

using namespace vabo;
using support::kCompany;

class AbilitazioneUtente : public testing::Test {
protected:
    AbilitazioneUtente() {
        DbAzienda.Open(workstation.driveC().firstLine("C:\\vabo\\IndirizzoServer.txt") + "DATABase=" + kCompany);
    }
    void setFlags(const std::string& assignments) const {
        workstation.run(kCompany, "update AbilitazioneAccessi set " + assignments + " where NomeUtente = 'contabile'");
    }
    void expectRefusal() { script.expectMessage("Utente non abilitato! "); }

    support::TestWorkstation workstation;
    support::DialogScript script;
    support::RecordedForms forms;
};

TEST_F(AbilitazioneUtente, SendsItsStatementLetterForLetter) {
    const support::StatementRecorder recorder;
    CaricaAbilitazione("contabile", "estate24");
    EXPECT_EQ(recorder.texts(),
              std::vector<std::string>{
                  "Select  idautonumber, NomeUtente, Administrator, A_Inserisci, A_Cancella, A_Iva, A_Bilancio, "
                  "A_Personale, A_ArchivioStoria, A_PFinanza, A_Synchro, A_EmettiPagamenti, A_Progetta, Disabilita "
                  "from  AbilitazioneAccessi where  NomeUtente = 'contabile' and  PaswUtente = 'estate24'"});
    EXPECT_FALSE(RsCondivisi(2).IsOpen());
}

struct Column {
    const char* name;
    Flag Diritti::*flag;
};

class OneRight : public AbilitazioneUtente, public testing::WithParamInterface<Column> {};

TEST_P(OneRight, ComesFromItsOwnColumn) {
    setFlags("Administrator = 0, A_Inserisci = 0, A_Cancella = 0, A_Iva = 0, A_Bilancio = 0, A_Personale = 0, "
             "A_ArchivioStoria = 0, A_PFinanza = 0, A_Synchro = 0, A_EmettiPagamenti = 0, A_Progetta = 0, "
             "Disabilita = 0");
    setFlags(std::string(GetParam().name) + " = 1");
    CaricaAbilitazione("contabile", "estate24");
    Diritti expected;
    expected.*GetParam().flag = kVero;
    EXPECT_EQ(DirittiUtente, expected);
}

constexpr Column kColumns[] = {{"Administrator", &Diritti::Administrator},
                               {"A_Inserisci", &Diritti::A_Inserisci},
                               {"A_Cancella", &Diritti::A_Cancella},
                               {"A_Iva", &Diritti::A_Iva},
                               {"A_Bilancio", &Diritti::A_Bilancio},
                               {"A_Personale", &Diritti::A_Personale},
                               {"A_ArchivioStoria", &Diritti::A_ArchivioStoria},
                               {"A_PFinanza", &Diritti::A_PFinanza},
                               {"A_Synchro", &Diritti::A_Synchro},
                               {"A_EmettiPagamenti", &Diritti::A_EmettiPagamenti},
                               {"A_Progetta", &Diritti::A_Progetta},
                               {"Disabilita", &Diritti::Disabilita}};

std::string columnName(const testing::TestParamInfo<Column>& test) {
    return test.param.name;
}

INSTANTIATE_TEST_SUITE_P(AbilitazioneUtente, OneRight, testing::ValuesIn(kColumns), columnName);

TEST_F(AbilitazioneUtente, SuccessReplacesAllFlagsAtOnce) {
    DirittiUtente = kDirittiLoginSenzaUtenti;
    CaricaAbilitazione("contabile", "estate24");
    Diritti expected;
    expected.A_Inserisci = expected.A_Iva = expected.A_Bilancio = expected.A_PFinanza = kVero;
    EXPECT_EQ(DirittiUtente, expected);
    EXPECT_EQ(TentativiLogin, 0);
}

TEST_F(AbilitazioneUtente, ADisabledUserIsLoadedLikeAnyOther) {
    CaricaAbilitazione("disabilitato", "autunno");
    EXPECT_EQ(DirittiUtente.Disabilita, kVero);
}

TEST_F(AbilitazioneUtente, OfTwoRowsAlikeTheFirstGivesTheRights) {
    workstation.run(kCompany, "insert into AbilitazioneAccessi (NomeUtente, PaswUtente, Administrator) values "
                              "('contabile', 'estate24', 1)");
    CaricaAbilitazione("contabile", "estate24");
    EXPECT_EQ(DirittiUtente.Administrator, kFalso);
}

TEST_F(AbilitazioneUtente, CaseAndTrailingBlanksAreTheServersBusiness) {
    CaricaAbilitazione("CONTABILE ", "Estate24");
    EXPECT_EQ(DirittiUtente.A_Iva, kVero);
}

struct Entry {
    const char* user;
    const char* password;
};

class EmptyEntry : public AbilitazioneUtente, public testing::WithParamInterface<Entry> {};

TEST_P(EmptyEntry, IsAFailedAttemptWithoutAQuery) {
    DirittiUtente = kDirittiPrimaDelLogin;
    const support::StatementRecorder recorder;
    expectRefusal();
    CaricaAbilitazione(GetParam().user, GetParam().password);
    EXPECT_EQ(TentativiLogin, 1);
    EXPECT_TRUE(recorder.texts().empty());
    EXPECT_EQ(DirittiUtente, kDirittiPrimaDelLogin);
    EXPECT_TRUE(forms.calls().empty());
}

INSTANTIATE_TEST_SUITE_P(AbilitazioneUtente, EmptyEntry,
                         testing::Values(Entry{"", "estate24"}, Entry{"contabile", ""}, Entry{"", ""},
                                         Entry{"contabile", "0"}, Entry{"0", "estate24"}, Entry{"contabile", "0,00"},
                                         Entry{"contabile", " "}));

TEST_F(AbilitazioneUtente, WhoIsNotFoundIsRefusedInTheSameWordsAndChangesNothing) {
    DirittiUtente = kDirittiPrimaDelLogin;
    expectRefusal();
    CaricaAbilitazione("contabile", "sbagliata");
    EXPECT_EQ(TentativiLogin, 1);
    EXPECT_EQ(DirittiUtente, kDirittiPrimaDelLogin);
    EXPECT_FALSE(RsCondivisi(2).IsOpen());
}

TEST_F(AbilitazioneUtente, TheThirdFailureShowsOneMessageAndTheFourthTwoAndClosesTheLogin) {
    for (int attempt = 1; attempt <= 3; ++attempt) {
        expectRefusal();
        CaricaAbilitazione("contabile", "sbagliata");
    }
    EXPECT_TRUE(forms.calls().empty());
    expectRefusal();
    script.expectMessage("Non è possibile riprovare! ");
    CaricaAbilitazione("", "");
    EXPECT_EQ(TentativiLogin, 4);
    EXPECT_EQ(forms.calls(), std::vector<std::string>{"unload About"});
}

TEST_F(AbilitazioneUtente, EveryFailureBehindTheFourthShowsBothToo) {
    TentativiLogin = 4;
    expectRefusal();
    script.expectMessage("Non è possibile riprovare! ");
    CaricaAbilitazione("contabile", "sbagliata");
    EXPECT_EQ(TentativiLogin, 5);
    EXPECT_EQ(forms.calls(), std::vector<std::string>{"unload About"});
}

TEST_F(AbilitazioneUtente, AnApostropheInTheNameSurfacesAsAnErrorOfTheDatabase) {
    DirittiUtente = kDirittiPrimaDelLogin;
    EXPECT_THROW(CaricaAbilitazione("o'brien", "x"), ado::Error);
    EXPECT_EQ(TentativiLogin, 0);
    EXPECT_EQ(DirittiUtente, kDirittiPrimaDelLogin);
}

/// The table as another program might have created it: its flags may be null.
class NullRight : public OneRight {
protected:
    NullRight() {
        workstation.run(kCompany, "drop table AbilitazioneAccessi");
        workstation.run(kCompany,
                        "create table AbilitazioneAccessi (idautonumber int identity(1,1) not null, NomeUtente "
                        "nvarchar(25) null, PaswUtente nvarchar(12) null, Administrator bit null, A_Inserisci bit "
                        "null, A_Cancella bit null, A_Iva bit null, A_Bilancio bit null, A_Personale bit null, "
                        "A_ArchivioStoria bit null, A_PFinanza bit null, A_Synchro bit null, A_EmettiPagamenti bit "
                        "null, A_Progetta bit null, Disabilita bit null)");
        workstation.run(kCompany, "insert into AbilitazioneAccessi values ('contabile', 'estate24', 1, 1, 1, 1, 1, 1, "
                                  "1, 1, 1, 1, 1, 0)");
    }
};

TEST_P(NullRight, GoesIntoNoFlagAndChangesNothing) {
    DirittiUtente = kDirittiPrimaDelLogin;
    setFlags(std::string(GetParam().name) + " = null");
    try {
        CaricaAbilitazione("contabile", "estate24");
        ADD_FAILURE() << "a null went into a flag";
    } catch (const ado::Error& error) {
        EXPECT_EQ(error.number(), ado::kInvalidUseOfNull);
    }
    EXPECT_EQ(DirittiUtente, kDirittiPrimaDelLogin);
    EXPECT_EQ(TentativiLogin, 0);
    setFlags(std::string(GetParam().name) + " = 0");
    CaricaAbilitazione("contabile", "estate24");
    EXPECT_EQ(DirittiUtente.*GetParam().flag, kFalso);
}

INSTANTIATE_TEST_SUITE_P(AbilitazioneUtente, NullRight, testing::ValuesIn(kColumns), columnName);

/// The table as another program might have created it: its flags are numbers.
class NumberRight : public OneRight {
protected:
    NumberRight() {
        workstation.run(kCompany, "drop table AbilitazioneAccessi");
        workstation.run(kCompany,
                        "create table AbilitazioneAccessi (idautonumber int identity(1,1) not null, NomeUtente "
                        "nvarchar(25) null, PaswUtente nvarchar(12) null, Administrator int null, A_Inserisci int "
                        "null, A_Cancella int null, A_Iva int null, A_Bilancio int null, A_Personale int null, "
                        "A_ArchivioStoria int null, A_PFinanza int null, A_Synchro int null, A_EmettiPagamenti int "
                        "null, A_Progetta int null, Disabilita int null)");
        workstation.run(kCompany, "insert into AbilitazioneAccessi values ('contabile', 'estate24', 0, 0, 0, 0, 0, 0, "
                                  "0, 0, 0, 0, 0, 0)");
    }
};

TEST_P(NumberRight, IsTrueWhateverTheNumberButZero) {
    for (const char* number : {"2", "-1", "1", "256", "65536"}) {
        setFlags(std::string(GetParam().name) + " = " + number);
        CaricaAbilitazione("contabile", "estate24");
        Diritti expected;
        expected.*GetParam().flag = kVero;
        EXPECT_EQ(DirittiUtente, expected) << number;
    }
}

INSTANTIATE_TEST_SUITE_P(AbilitazioneUtente, NumberRight, testing::ValuesIn(kColumns), columnName);

TEST_F(AbilitazioneUtente, ANullNameOrPasswordIsFoundByNobody) {
    workstation.run(kCompany, "insert into AbilitazioneAccessi (NomeUtente, PaswUtente) values (null, 'x1')");
    workstation.run(kCompany, "insert into AbilitazioneAccessi (NomeUtente, PaswUtente) values ('vuoto', null)");
    expectRefusal();
    CaricaAbilitazione("null", "x1");
    expectRefusal();
    CaricaAbilitazione("vuoto", "null");
    EXPECT_EQ(TentativiLogin, 2);
}

TEST_F(AbilitazioneUtente, EverySharedRecordsetIsClosedAheadAndBehind) {
    RsCondivisi(5).Open("select * from Sede", DbAzienda);
    CaricaAbilitazione("contabile", "estate24");
    EXPECT_FALSE(RsCondivisi(5).IsOpen());
    RsCondivisi(5).Open("select * from Sede", DbAzienda);
    expectRefusal();
    CaricaAbilitazione("contabile", "sbagliata");
    EXPECT_FALSE(RsCondivisi(5).IsOpen());
}

TEST_F(AbilitazioneUtente, AClosedCompanySurfacesAsAnError) {
    DbAzienda.Close();
    EXPECT_THROW(CaricaAbilitazione("contabile", "estate24"), ado::Error);
}

TEST_F(AbilitazioneUtente, SharedRecordsetsLeftOpenDoNotMatter) {
    RsCondivisi(2).Open("select * from Sede", DbAzienda);
    CaricaAbilitazione("contabile", "estate24");
    EXPECT_EQ(DirittiUtente.A_Iva, kVero);
}

TEST(DirittiFissi, AreThreeRows) {
    EXPECT_EQ(kDirittiPrimaDelLogin,
              (Diritti{kFalso, kFalso, kFalso, kFalso, kFalso, kFalso, kFalso, kFalso, kFalso, kFalso, kFalso, kVero}));
    EXPECT_EQ(kDirittiLoginSenzaUtenti,
              (Diritti{kVero, kVero, kVero, kVero, kVero, kVero, kVero, kVero, kVero, kVero, kVero, kFalso}));
    EXPECT_EQ(kDirittiAvvioSenzaUtenti,
              (Diritti{kVero, kVero, kVero, kVero, kVero, kVero, kVero, kVero, kVero, kVero, kFalso, kFalso}));
}

} // namespace
