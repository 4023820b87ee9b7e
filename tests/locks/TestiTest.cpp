// Every statement of the two locks, letter for letter, in the order in which they go out.

#include "kit/Regole.h"
#include "locks/LibroAperto.h"
#include "locks/TestiProgetto.h"
#include "locks/TestiSede.h"
#include "locks/TestiTransazioni.h"

#include <gmock/gmock.h>

namespace vabo {
namespace {

using testing::ElementsAreArray;
using Testi = std::vector<std::string>;

const Testi kNoveConti = {
    "SELECT  * From TabellaContiUtili where id = 1 ",      "SELECT  * From TabellaContiUtili where id = 2 ",
    "SELECT  * From TabellaContiUtili where id = 1 ",      "SELECT  * From TabellaContiUtili where id = 1 ",
    "SELECT  * From TabellaContiUtili where id =5 ",       "SELECT  * From TabellaContiUtili where id = 1 ",
    "SELECT  * From TabellaContiUtili where id = 1 ",      "SELECT  * From TabellaContiUtili where id = 1 ",
    "SELECT  * From TabellaContiUtili where id = 1 ",      "SELECT  IdGruppoVabo From conti where IdConto =1051",
    "SELECT  IdGruppoVabo From conti where IdConto =1058", "SELECT  IdGruppoVabo From conti where IdConto =1051",
    "SELECT  IdGruppoVabo From conti where IdConto =1051", "SELECT  IdGruppoVabo From conti where IdConto =1059",
    "SELECT  IdGruppoVabo From conti where IdConto =1051", "SELECT  IdGruppoVabo From conti where IdConto =1051",
    "SELECT  IdGruppoVabo From conti where IdConto =1051", "SELECT  IdGruppoVabo From conti where IdConto =1051"};

/// Each of the four optional accounts is asked for twice, for the test and for its value.
const Testi kFacoltativi = {
    "SELECT  * From TabellaContiUtili  where id = 18",   "SELECT  * From TabellaContiUtili  where id = 18",
    "SELECT  * From TabellaContiUtili  where id =  19 ", "SELECT  * From TabellaContiUtili  where id =  19 ",
    "SELECT  * From TabellaContiUtili where id = 27 ",   "SELECT  * From TabellaContiUtili where id = 27 ",
    "SELECT  * From TabellaContiUtili where id = 29 ",   "SELECT  * From TabellaContiUtili where id = 29 "};

const Testi kContiHq = {"SELECT  * From TabellaContiUtiliTransfersHq where id = 2 ",
                        "SELECT  * From TabellaContiUtiliTransfersHq where id = 1 "};

Testi uniti(const std::vector<Testi>& parti) {
    Testi tutti;
    for (const Testi& parte : parti) {
        tutti.insert(tutti.end(), parte.begin(), parte.end());
    }
    return tutti;
}

class LockTexts : public LibroAperto {};

TEST_F(LockTexts, TheProjectsLockSendsTheseAndNoOther) {
    metti({{.id = 1, .numero = 70, .sede = 2, .seziva = 1},
           {.id = 2,
            .numero = 71,
            .sede = 3,
            .transazione = libro::alle("2024-03-31"),
            .report = libro::alle("2024-03-31"),
            .conto = 1060}});
    const support::StatementRecorder recorder;
    bloccaProgetto("31/03/2024");
    EXPECT_THAT(
        recorder.texts(),
        ElementsAreArray(uniti({
            {"update progetti set iddate = CONVERT(DATETIME, '2024-3-31', 102) where id =10000003",
             "Select * from contatorepd",
             "update partitadoppia set definito =0  where idprogettorendiconto =10000003 and datatransazione >   "
             "CONVERT(DATETIME, '2023-12-31', 102)  "},
            kNoveConti,
            kFacoltativi,
            {"update partitadoppia set definito =-1  where idprogettorendiconto =10000003 and  (datareport < "
             "CONVERT(DATETIME, '2024-3-31', 102) or datareport = CONVERT(DATETIME, '2024-3-31', 102)) and  (NOT "
             "EXISTS (SELECT  * FROM  Partitadoppia AS B   WHERE (B.numerotransazione = "
             "partitadoppia.numerotransazione and B.idsede = partitadoppia.idsede) and ( b.idconto = 1051 or b.idconto "
             "= 1058 or b.idconto = 1051 or b.idconto = 1051 or b.idconto = 1059 or b.idconto = 1051 or b.idconto = "
             "1051 or b.idconto = 1060 or b.idconto = 1040 or b.idconto = 1250 or b.idconto = 1251)))  "},
            kContiHq,
            kFacoltativi,
            {"select * from partitadoppia  where   idprogettorendiconto =10000003 and   (idconto= 1167 or   idconto= "
             "1166 or  idconto = 1051 or idconto = 1058 or idconto = 1051 or idconto = 1051 or idconto = 1059 or "
             "idconto = 1051 or idconto = 1051 or idconto = 1060 or idconto = 1040 or idconto = 1250 or idconto = 1251 "
             "or   seziva>0   or ((importodepositi-importoprelievi = 0  or importodepositi-importoprelievi is null) "
             "and not idvaluta = 1001))",
             "update partitadoppia set definito = -1, datareport = datatransazione where   numerotransazione= 70 and  "
             "idsede = 2",
             "update partitadoppia set definito = -1, datareport = datatransazione where   numerotransazione= 71 and  "
             "idsede = 3"},
            kFacoltativi,
            {"select * from partitadoppia  where   idprogettorendiconto =10000003 and  datareport =  "
             "CONVERT(DATETIME, '2024-3-31', 102)   and   ( idconto = 1051 or idconto = 1058 or idconto = 1051 or "
             "idconto = 1051 or idconto = 1059 or idconto = 1051 or idconto = 1051 or idconto = 1060 or idconto = 1040 "
             "or idconto = 1250 or idconto = 1251)",
             "update partitadoppia set definito = -1, datareport = datatransazione where   numerotransazione= 71 and  "
             "idsede = 3"},
        })));
}

TEST_F(LockTexts, TheBranchsLockSendsTheseAndNoOther) {
    metti({{.id = 1, .numero = 70, .sede = 2, .seziva = 1}});
    const support::StatementRecorder recorder;
    bloccaSede("31/03/2024");
    Testi inviati = recorder.texts();
    // Between them the data layer holds the branch's row and writes it.
    std::erase_if(inviati, [](const std::string& testo) { return testo.find('[') != std::string::npos; });
    EXPECT_THAT(
        inviati,
        ElementsAreArray(uniti({
            {"Select * from elencosedi where idsede = 4", "Select * from contatorepd",
             "update partitadoppia set definito =0  where idsedecompetenza =4 and datatransazione >   "
             "CONVERT(DATETIME, '2024-3-31', 102)   and datatransazione >   CONVERT(DATETIME, '2023-12-31', 102)  ",
             "Select * from contatorepd"},
            kNoveConti,
            {"update partitadoppia set definito =-1  where idsedecompetenza =4 and  (datatransazione < "
             "CONVERT(DATETIME, '2024-1-1', 102)  )"},
            kContiHq,
            kFacoltativi,
            kFacoltativi,
            {"select * from partitadoppia  where   idsedecompetenza = 4 and   (idconto= 1167 or   idconto= 1166 or  "
             "idconto = 1051 or idconto = 1058 or idconto = 1051 or idconto = 1051 or idconto = 1059 or idconto = 1051 "
             "or idconto = 1051 or idconto = 1060 or idconto = 1040 or idconto = 1250 or idconto = 1251 or idconto = "
             "1060 or idconto = 1040 or idconto = 1250 or idconto = 1251 or   seziva>0   or "
             "((importodepositi-importoprelievi = 0  or importodepositi-importoprelievi is null) and not idvaluta = "
             "1001))",
             "update partitadoppia set definito = -1 where   numerotransazione= 70 and  idsede = 2"},
        })));
}

TEST_F(LockTexts, ThoseOfTheBranchsForm) {
    EXPECT_EQ(ElencoSediDaBloccare(),
              "Select E.idsede,E.città,S.descstato from elencosedi AS E left join stati AS S on "
              "E.idstato=S.idstato order by città");
    EXPECT_EQ(DataBloccoSede(4), "SELECT  iddatainvio From  elencosedi   Where  idsede = 4");
}

TEST_F(LockTexts, AnOptionalAccountThatIsMissingLeavesItsClauseOut) {
    esegui("delete from TabellaContiUtili where ID in (18, 19, 29)");
    esegui("update TabellaContiUtili set idconto = null where ID = 27");
    const NoveConti conti = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    const support::StatementRecorder recorder;
    EXPECT_EQ(ContiDefinitivi(kSenzaRegola, conti, " idconto = "),
              " idconto = 1 or idconto = 2 or idconto = 3 or idconto = 4 or idconto = 5 or idconto = 6 or idconto = 7");
    EXPECT_EQ(recorder.texts().size(), 4U) << "an empty one is asked for once";
    esegui("update TabellaContiUtili set idconto = 27 where ID = 27");
    EXPECT_EQ(ContiDefinitivi(kSenzaRegola, conti, " b.idconto = ", 2),
              " b.idconto = 1 or b.idconto = 2 or b.idconto = 3 or b.idconto = 4 or b.idconto = 5 or b.idconto = 6 or "
              "b.idconto = 7 or b.idconto = 27 or b.idconto = 27");
}

TEST_F(LockTexts, AFixedAccountThatIsMissingIsAccountZero) {
    esegui("delete from TabellaContiUtili where ID = 1");
    esegui("delete from TabellaContiUtiliTransfersHq");
    metti({});
    const support::StatementRecorder recorder;
    bloccaProgetto("31/03/2024");
    const Testi scelte = recorder.holding("select * from partitadoppia");
    ASSERT_EQ(scelte.size(), 2U);
    EXPECT_THAT(scelte[0], testing::HasSubstr("  (idconto= 0 or   idconto= 0 or  idconto = 0 or idconto = 1058 or "
                                              "idconto = 0 or idconto = 0 or idconto = 1059 or idconto = 0 or idconto "
                                              "= 0 or idconto = 1060"));
}

TEST_F(LockTexts, AWholeKeyIsWrittenWithoutAPoint) {
    EXPECT_EQ(SegnaDataProgetto(1e9, ado::Date::of(2024, 1, 1)),
              "update progetti set iddate = CONVERT(DATETIME, '2024-1-1', 102) where id =1000000000");
    EXPECT_EQ(RigaSede(2147483647), "Select * from elencosedi where idsede = 2147483647");
    EXPECT_EQ(DellaTransazione(2147483647, -3), " where   numerotransazione= 2147483647 and  idsede = -3");
    EXPECT_EQ(DellaTransazione(ado::Null{}, 3), " where   numerotransazione=  and  idsede = 3");
}

} // namespace
} // namespace vabo
