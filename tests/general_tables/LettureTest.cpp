#include "ado/Error.h"
#include "general_tables/AziendaAperta.h"
#include "general_tables/CaricaValoriControlli.h"
#include "general_tables/Conti.h"

namespace vabo {
namespace {

class LeggiCampoTest : public AziendaAperta {};
class LeggiGruppoVaboTest : public AziendaAperta {};
class ContoEconomicoTest : public AziendaAperta {};

TEST_F(LeggiCampoTest, SendsItsStatementWithEveryBlank) {
    const support::StatementRecorder recorder;
    EXPECT_EQ(LeggiCampo("conti", "nomeconto", "idconto", 1051),
              valore("select NomeConto from conti where IdConto = 1051"));
    EXPECT_EQ(recorder.count(" select nomeconto from conti Where idconto = 1051"), 1);
}

TEST_F(LeggiCampoTest, GivesANumberAsText) {
    EXPECT_EQ(LeggiCampo("IvaTrattamento", "Aliquota", "idautonumber", 2), "22");
    esegui("update IvaTrattamento set Aliquota = 20.5 where idautonumber = 2");
    EXPECT_EQ(LeggiCampo("IvaTrattamento", "Aliquota", "idautonumber", 2), "20,5");
}

TEST_F(LeggiCampoTest, GivesNothingForAFieldThatCountsAsNothing) {
    for (const char* niente : {"0", "00", "0,00", " "}) {
        esegui(std::string("update conti set NomeConto = '") + niente + "' where IdConto = 1051");
        EXPECT_EQ(LeggiCampo("conti", "nomeconto", "idconto", 1051), "") << niente;
    }
    esegui("update conti set idmastro = 0 where IdConto = 1051");
    EXPECT_EQ(LeggiCampo("conti", "idmastro", "idconto", 1051), "");
    esegui("update conti set NomeConto = null where IdConto = 1051");
    EXPECT_EQ(LeggiCampo("conti", "nomeconto", "idconto", 1051), "");
}

TEST_F(LeggiCampoTest, AsksNothingWithoutAValueOrAName) {
    const support::StatementRecorder recorder;
    EXPECT_EQ(LeggiCampo("conti", "nomeconto", "idconto", 0), "");
    EXPECT_EQ(LeggiCampo("", "nomeconto", "idconto", 1051), "");
    EXPECT_EQ(LeggiCampo("conti", "", "idconto", 1051), "");
    EXPECT_EQ(LeggiCampo("conti", "nomeconto", " ", 1051), "");
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(LeggiCampoTest, GivesNothingAndSaysNothingWhereTheStatementFails) {
    support::DialogScript script;
    EXPECT_EQ(LeggiCampo("conti", "non_esiste", "idconto", 1051), "");
    EXPECT_EQ(LeggiCampo("tabella_che_manca", "nome", "id", 1), "");
    EXPECT_EQ(LeggiCampo("conti", "nomeconto", "idconto", 999999), "");
    DbAzienda.Close();
    EXPECT_EQ(LeggiCampo("conti", "nomeconto", "idconto", 1051), "");
}

TEST_F(LeggiGruppoVaboTest, ReadsTheGroupOnAConnectionOfItsOwn) {
    DbAzienda.Close();
    const support::StatementRecorder recorder;
    EXPECT_EQ(LeggiGruppoVabo(1051), 19);
    EXPECT_EQ(recorder.count("SELECT  IdGruppoVabo From conti where IdConto =1051"), 1);
    EXPECT_EQ(Sql, "SELECT  IdGruppoVabo From conti where IdConto =1051");
}

TEST_F(LeggiGruppoVaboTest, IsZeroForAnAccountThatDoesNotExist) {
    EXPECT_EQ(LeggiGruppoVabo(999999), 0);
    EXPECT_EQ(LeggiGruppoVabo(0), 0);
}

TEST_F(LeggiGruppoVaboTest, RaisesForANullGroup) {
    esegui("update conti set IdGruppoVabo = null where IdConto = 1051");
    try {
        LeggiGruppoVabo(1051);
        FAIL() << "a null group went into a number";
    } catch (const ado::Error& errore) {
        EXPECT_EQ(errore.number(), ado::kInvalidUseOfNull);
    }
}

TEST_F(LeggiGruppoVaboTest, RaisesWhereItCannotConnect) {
    const std::string buona = StringaAzienda;
    StringaAzienda = "Server=;Database=manca;";
    EXPECT_THROW(LeggiGruppoVabo(1051), ado::Error);
    StringaAzienda = buona;
    EXPECT_EQ(LeggiGruppoVabo(1051), 19);
}

TEST_F(LeggiGruppoVaboTest, LeavesNoConnectionBehind) {
    LeggiGruppoVabo(1051);
    DbAzienda.Close();
    EXPECT_NO_THROW(posto.drop(support::kCompany)) << "nobody uses it";
}

TEST_F(ContoEconomicoTest, CountsMastersOneAndFour) {
    const std::pair<const char*, bool> casi[] = {{"1", true},  {"2", false},    {"3", false}, {"4", true},
                                                 {"0", false}, {"null", false}, {"-1", false}};
    for (const auto& [mastro, economico] : casi) {
        esegui(std::string("update conti set idmastro = ") + mastro + " where IdConto = 1051");
        EXPECT_EQ(ContoEconomico(1051), economico) << "master " << mastro;
    }
}

TEST_F(ContoEconomicoTest, IsFalseForNoAccountAndForOneThatDoesNotExist) {
    const support::StatementRecorder recorder;
    EXPECT_FALSE(ContoEconomico(0));
    EXPECT_TRUE(recorder.texts().empty());
    EXPECT_FALSE(ContoEconomico(999999));
    EXPECT_EQ(recorder.count("select idmastro from conti where idconto = 999999"), 1);
    DbAzienda.Close();
    EXPECT_FALSE(ContoEconomico(1051));
}

} // namespace
} // namespace vabo
