#include "general_tables/TrattamentoIva.h"

#include "ado/Error.h"
#include "general_tables/AziendaAperta.h"

namespace vabo {
namespace {

class TrattamentoIvaTest : public AziendaAperta {};

TEST_F(TrattamentoIvaTest, TheListLeavesOutTheFirstAndThoseOfSales) {
    EXPECT_EQ(ElencoTrattamenti(), "SELECT IdAutoNumber,  Descrizione From IvaTrattamento where idautonumber > 1 and "
                                   "not sigla like 'IV%' ORDER BY Descrizione");
    for (const Riga& r : posto.rows(support::kCompany, ElencoTrattamenti())) {
        EXPECT_NE(r[0], "1");
        EXPECT_NE(valore("select left(Sigla, 2) from IvaTrattamento where idautonumber = " + r[0]), "IV");
    }
    EXPECT_EQ(posto.rows(support::kCompany, ElencoTrattamenti()).size(), 10U);
}

TEST_F(TrattamentoIvaTest, TheStandardIsTwoUntilOneIsStored) {
    esegui("delete from IvaAliquotaStandard");
    EXPECT_EQ(LeggiAliquotaStandard(), 2);
    EXPECT_EQ(valore("select count(*) from IvaAliquotaStandard"), "0");
    SalvaAliquotaStandard(3, "10,00", " 10 ", "100,00");
    EXPECT_EQ(riga("select idTipo, Aliquota, Sigla, Detrazione from IvaAliquotaStandard"),
              (Riga{"3", "10,00", "10", "100,00"}));
    EXPECT_EQ(LeggiAliquotaStandard(), 3);
    SalvaAliquotaStandard(4, "5,00", "05", "100,00");
    EXPECT_EQ(valore("select count(*) from IvaAliquotaStandard"), "1");
}

TEST_F(TrattamentoIvaTest, TheStandardIsReadAndStoredThroughOneStatement) {
    const support::StatementRecorder recorder;
    LeggiAliquotaStandard();
    EXPECT_EQ(recorder.texts(), std::vector<std::string>{"select * from IvaAliquotaStandard  "});
    SalvaAliquotaStandard(3, "10,00", "10", "100,00");
    EXPECT_EQ(recorder.count("select * from IvaAliquotaStandard  "), 2);
}

TEST_F(TrattamentoIvaTest, TheSiglaIsTrimmedAtBothEndsAndMayBeEmpty) {
    const std::pair<const char*, const char*> casi[] = {{"  a b  ", "a b"}, {"x", "x"}, {" ", ""}, {"", ""}};
    for (const auto& [scritta, salvata] : casi) {
        SalvaAliquotaStandard(3, "10,00", scritta, "100,00");
        EXPECT_EQ(valore("select Sigla from IvaAliquotaStandard"), salvata);
    }
}

TEST_F(TrattamentoIvaTest, AStoreIsRefusedWhereItCannotBeWritten) {
    EXPECT_THROW(SalvaAliquotaStandard(3, "10,00", "dodici lettere", "100,00"), ado::Error);
    EXPECT_EQ(riga("select idTipo, Sigla from IvaAliquotaStandard"), (Riga{"2", "22"}));
    DbAzienda.Close();
    EXPECT_THROW(SalvaAliquotaStandard(3, "10,00", "10", "100,00"), ado::Error);
}

TEST_F(TrattamentoIvaTest, NumbersAreGroupedAndHaveTheLocalesDecimals) {
    esegui("update IvaTrattamento set Aliquota = 1234.5, quotadetrazione = 1000000 where idautonumber = 6");
    EXPECT_EQ(AliquotaTrattamento(6), "1.234,50");
    EXPECT_EQ(DetrazioneTrattamento(6), "1.000.000,00");
}

TEST_F(TrattamentoIvaTest, AnEmptyOrUnreadableStandardIsTwo) {
    for (const char* vuoto : {"0", "null"}) {
        esegui(std::string("update IvaAliquotaStandard set idTipo = ") + vuoto);
        EXPECT_EQ(LeggiAliquotaStandard(), 2) << vuoto;
    }
    DbAzienda.Close();
    EXPECT_EQ(LeggiAliquotaStandard(), 2);
}

TEST_F(TrattamentoIvaTest, TheFieldsOfATreatmentAsTheScreenShowsThem) {
    EXPECT_EQ(DescrizioneTrattamento(6), "Imponibile 22% detraibile 50%");
    EXPECT_EQ(AliquotaTrattamento(6), "22,00");
    EXPECT_EQ(DetrazioneTrattamento(6), "50,00");
    EXPECT_EQ(SiglaTrattamento(6), "22D");
}

TEST_F(TrattamentoIvaTest, ARateOfZeroIsNoNumber) {
    const auto errore = [](auto&& lettura) {
        try {
            lettura();
        } catch (const ado::Error& e) {
            return e.number();
        }
        return 0;
    };
    EXPECT_EQ(errore([] { AliquotaTrattamento(9); }), ado::kTypeMismatch);
    EXPECT_EQ(errore([] { DetrazioneTrattamento(7); }), ado::kTypeMismatch);
    EXPECT_EQ(errore([] { AliquotaTrattamento(999); }), ado::kTypeMismatch);
    EXPECT_EQ(DescrizioneTrattamento(999), "");
    esegui("update IvaTrattamento set Descrizione = null, Aliquota = null, quotadetrazione = null, Sigla = null where "
           "idautonumber = 6");
    EXPECT_EQ(errore([] { AliquotaTrattamento(6); }), ado::kTypeMismatch);
    EXPECT_EQ(errore([] { DetrazioneTrattamento(6); }), ado::kTypeMismatch);
    EXPECT_EQ(DescrizioneTrattamento(6), "");
    EXPECT_EQ(SiglaTrattamento(6), "");
}

} // namespace
} // namespace vabo
