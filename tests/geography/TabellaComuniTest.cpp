#include "geography/TabellaComuni.h"

#include "ado/Error.h"
#include "general_tables/AziendaAperta.h"
#include "kit/ApriScrivibile.h"

#include <QString>

namespace vabo {
namespace {

using Testi = std::vector<std::string>;

constexpr const char* kNulla = "NULL";

const CampiComune kPalestrina = {.nome = "Palestrina", .provincia = "RM", .cap = "00036", .idStato = 1};

class TabellaComuni : public AziendaAperta {
protected:
    double chiave(const std::string& nome) const {
        return std::stod(valore("select idautonumber from Comuni where DES_COMUNE = '" + nome + "'"));
    }
    /// Name, province, postal code and state.
    Riga comune(const std::string& dove) const {
        return riga("select DES_COMUNE, DES_PROVIN, COD_CAP, IdStato from Comuni where " + dove);
    }
    Riga nuovo() const { return comune("idautonumber = (select max(idautonumber) from Comuni)"); }
    int quanti(const std::string& dove = "1 = 1") const {
        return std::stoi(valore("select count(*) from Comuni where " + dove));
    }
    std::vector<Riga> tutti() const {
        return posto.rows(support::kCompany, "select * from Comuni order by idautonumber");
    }
    /// The list as the form has it.
    static std::unique_ptr<ado::Recordset> elenco() {
        auto rs = std::make_unique<ado::Recordset>();
        rs->Open(ElencoComuniConStati(), DbAzienda, ado::CursorType::Static, ado::LockType::Optimistic);
        return rs;
    }
};

TEST_F(TabellaComuni, ReadsTheListsLetterForLetter) {
    EXPECT_EQ(ElencoComuniConStati(),
              "SELECT Comuni.idautonumber,Comuni.DES_COMUNE, Comuni.DES_PROVIN, Comuni.COD_CAP, Stati.IdStato, "
              "Stati.DescStato FROM Comuni LEFT JOIN Stati ON Comuni.IdStato = Stati.IdStato order by "
              "descstato,des_comune");
    EXPECT_EQ(ElencoComuniRiletto(),
              "SELECT Comuni.idautonumber, Comuni.DES_COMUNE, Comuni.DES_PROVIN, Comuni.COD_CAP, Stati.IdStato, "
              "Stati.DescStato FROM Comuni LEFT JOIN Stati ON Comuni.IdStato = Stati.IdStato order by "
              "descstato,des_comune");
    EXPECT_EQ(ElencoStatiDeiComuni(), "SELECT * FROM stati order by descstato");
}

TEST_F(TabellaComuni, ANewMunicipalityIsSentLetterForLetterAndIsARow) {
    const int prima = quanti();
    const support::StatementRecorder recorder;
    SalvaComune(0, kPalestrina);
    EXPECT_EQ(recorder.texts().front(), "select * from comuni");
    ASSERT_EQ(recorder.texts().size(), 2U);
    EXPECT_EQ(QString::fromStdString(recorder.texts().back()).replace("[comuni]", "[Comuni]").toStdString(),
              "INSERT INTO [Comuni] ([DES_COMUNE], [DES_PROVIN], [COD_CAP], [IdStato]) VALUES (N'Palestrina', N'RM', "
              "N'00036', 1)");
    EXPECT_EQ(quanti(), prima + 1);
    EXPECT_EQ(nuovo(), (Riga{"Palestrina", "RM", "00036", "1"}));
    EXPECT_FALSE(RsCondivisi(1).IsOpen());
}

TEST_F(TabellaComuni, AMunicipalityOfAKeyIsChangedInItsRowAlone) {
    auto atteso = tutti();
    const double id = chiave("Aosta");
    const support::StatementRecorder recorder;
    SalvaComune(id, {.nome = "Aoste", .provincia = "VA", .cap = "11101", .idStato = 2});
    EXPECT_EQ(recorder.texts().front(), "select * from  comuni where idautonumber=" + ado::plainNumber(id));
    for (Riga& riga : atteso) {
        if (riga[0] == ado::plainNumber(id)) {
            riga = {riga[0], "Aoste", "VA", "11101", "2"};
        }
    }
    EXPECT_EQ(tutti(), atteso);
}

TEST_F(TabellaComuni, AKeyGoesIntoItsStatementInPlainDigits) {
    const support::StatementRecorder recorder;
    EXPECT_THROW(SalvaComune(1'000'000, kPalestrina), ado::Error);
    EXPECT_EQ(recorder.texts(), Testi{"select * from  comuni where idautonumber=1000000"});
}

TEST_F(TabellaComuni, ARowThatIsGoneRaisesAndIsNotMadeAnew) {
    const double id = chiave("Aosta");
    esegui("delete from Comuni where DES_COMUNE = 'Aosta'");
    try {
        SalvaComune(id, kPalestrina);
        FAIL() << "nothing raised";
    } catch (const ado::Error& errore) {
        EXPECT_EQ(errore.number(), 3021);
    }
    EXPECT_EQ(quanti("DES_COMUNE = 'Palestrina'"), 0);
    SalvaComune(0, kPalestrina);
    EXPECT_EQ(quanti("DES_COMUNE = 'Palestrina'"), 1) << "the shared recordset was given back";
}

TEST_F(TabellaComuni, TwoCharactersOfTheProvinceAndFiveOfThePostalCodeAreKept) {
    struct Caso {
        const char *provincia, *cap;
        Riga tenuti;
    };
    const Caso casi[] = {{"ROM", "001234", {"RO", "00123"}}, {"àèì", "àèìòùé", {"àè", "àèìòù"}},
                         {"R", "36", {"R", "36"}},           {"", "", {"", ""}},
                         {"RM ", "00036 ", {"RM", "00036"}}, {" RM", " 00036", {" R", " 0003"}}};
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.cap);
        SalvaComune(0, {.nome = "A", .provincia = caso.provincia, .cap = caso.cap, .idStato = 1});
        EXPECT_EQ((Riga{nuovo()[1], nuovo()[2]}), caso.tenuti);
    }
}

TEST_F(TabellaComuni, ANameThatIsTooLongLeavesItsColumnAloneAndTheOthersAreStored) {
    SalvaComune(0, {.nome = std::string(4'000, 'x'), .provincia = "RM", .cap = "00036", .idStato = 1});
    EXPECT_EQ(nuovo(), (Riga{kNulla, "RM", "00036", "1"}));
    SalvaComune(chiave("Aosta"), {.nome = std::string(101, 'x'), .provincia = "XX", .cap = "1", .idStato = 3});
    EXPECT_EQ(comune("DES_COMUNE = 'Aosta'"), (Riga{"Aosta", "XX", "1", "3"}));
}

TEST_F(TabellaComuni, AColumnThatIsMissingOrTooNarrowIsSkippedAndTheOthersAreStored) {
    esegui("drop table Comuni create table Comuni (idautonumber int identity(1,1) not null primary key, DES_COMUNE "
           "nvarchar(100) null, COD_CAP nvarchar(3) null, IdStato int null)");
    SalvaComune(0, kPalestrina);
    EXPECT_EQ(riga("select DES_COMUNE, COD_CAP, IdStato from Comuni"), (Riga{"Palestrina", kNulla, "1"}));
}

TEST_F(TabellaComuni, AStateThatDoesNotFitIsSkipped) {
    SalvaComune(0, {.nome = "A", .provincia = "RM", .cap = "00036", .idStato = 3e9});
    EXPECT_EQ(nuovo(), (Riga{"A", "RM", "00036", "1"})) << "the column's own default";
}

TEST_F(TabellaComuni, WhateverIsTypedEntersNoStatement) {
    for (const std::string testo : {"'", "x'; delete from Comuni --", "a;b", "-- x", "/*", "*/", "\"", "a\tb",
                                    "\x01\x1b\x7f", "città ’ß€", "''"}) {
        SCOPED_TRACE(testo);
        const int prima = quanti();
        const QString lettere = QString::fromStdString(testo);
        SalvaComune(0, {.nome = testo, .provincia = testo, .cap = testo, .idStato = 1});
        EXPECT_EQ(nuovo(), (Riga{testo, lettere.left(2).toStdString(), lettere.left(5).toStdString(), "1"}));
        EXPECT_EQ(quanti(), prima + 1);
    }
}

TEST_F(TabellaComuni, ARowThatSomebodyElseHoldsStaysAsItIsAndNothingIsTold) {
    const double id = chiave("Aosta");
    const auto prima = tutti();
    ado::Connection altrui;
    altrui.Open(StringaAzienda);
    ado::Recordset tenuta;
    ApriScrivibile(tenuta, "select * from Comuni where idautonumber = " + ado::plainNumber(id), altrui);
    tenuta["COD_CAP"] = "ZZZ";
    SalvaComune(id, kPalestrina);
    tenuta.CancelUpdate();
    EXPECT_EQ(tutti(), prima);
}

TEST_F(TabellaComuni, ARowThatTheServerRefusesIsSkipped) {
    esegui("create unique index unico on Comuni (DES_COMUNE)");
    const auto prima = tutti();
    SalvaComune(0, {.nome = "Aosta", .provincia = "AO", .cap = "11100", .idStato = 1});
    EXPECT_EQ(tutti(), prima);
}

TEST_F(TabellaComuni, WithoutTheTableTheErrorRises) {
    esegui("drop table Comuni");
    EXPECT_THROW(SalvaComune(0, kPalestrina), ado::Error);
    EXPECT_THROW(SalvaComune(1, kPalestrina), ado::Error);
}

TEST_F(TabellaComuni, TheStateOfARowMayBeNone) {
    const auto rs = elenco();
    EXPECT_TRUE(ComuneGiaInserito(*rs, "Campione d''Italia"));
    EXPECT_EQ(StatoDellaRiga(*rs), std::nullopt);
    EXPECT_TRUE(ComuneGiaInserito(*rs, "Aosta"));
    EXPECT_EQ(StatoDellaRiga(*rs), 1.0);
    esegui("update Comuni set IdStato = 9999 where DES_COMUNE = 'Aosta'");
    rs->Requery();
    EXPECT_EQ(StatoDellaRiga(*rs), std::nullopt) << "a state that isn't there";
}

TEST_F(TabellaComuni, ADuplicateIsLookedForInTheListByTheNameAlone) {
    const auto rs = elenco();
    EXPECT_TRUE(ComuneGiaInserito(*rs, "Aosta"));
    EXPECT_EQ(rs->Filter(), "des_comune='Aosta'");
    EXPECT_EQ(rs->RecordCount(), 1);
    EXPECT_TRUE(ComuneGiaInserito(*rs, "AOSTA"));
    EXPECT_TRUE(ComuneGiaInserito(*rs, "Nairobi")) << "of another state";
    EXPECT_FALSE(ComuneGiaInserito(*rs, "Aost"));
    EXPECT_FALSE(ComuneGiaInserito(*rs, "Aost*"));
    EXPECT_FALSE(ComuneGiaInserito(*rs, "Aost%"));
    EXPECT_TRUE(ComuneGiaInserito(*rs, "x' or des_comune='Aosta"));
    EXPECT_TRUE(ComuneGiaInserito(*rs, "L''Aquila")) << "a doubled apostrophe is one";
}

TEST_F(TabellaComuni, ANameThatBreaksTheFilterIsAnErrorAndTheListStaysWhole) {
    const auto rs = elenco();
    const long prima = rs->RecordCount();
    for (const char* nome : {"L'Aquila", "'", "x' or", "x' --", "x'; delete from Comuni --", "x')"}) {
        SCOPED_TRACE(nome);
        try {
            ComuneGiaInserito(*rs, nome);
            ADD_FAILURE() << "nothing raised";
        } catch (const ado::Error& errore) {
            EXPECT_EQ(errore.number(), 3001);
        }
        EXPECT_EQ(rs->RecordCount(), prima);
    }
    for (const std::string& nome : {std::string("a;b"), std::string("--"), std::string("/*"), std::string("\""),
                                    std::string("\x01\t\x7f"), std::string(4'000, 'x')}) {
        EXPECT_FALSE(ComuneGiaInserito(*rs, nome)) << nome;
    }
}

} // namespace
} // namespace vabo
