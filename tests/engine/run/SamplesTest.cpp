#include "engine/SessionFixture.h"
#include "engine/StatementTexts.h"
#include "engine/values/Collation.h"
#include "provision/Scripts.h"

#include <map>

namespace engine {
namespace {

/// The tables of a company and of the registry, as any server would lay them down, in one database.
class Samples : public SessionTest {
protected:
    Samples() {
        for (const char* script : {"company.sql", "control.sql"}) {
            for (const std::string_view batch : provision::batches(provision::script(script))) {
                run(batch);
            }
        }
    }
};

/// What a sample answers where the state of the tables makes it an error.
const std::map<std::string_view, std::string_view> kRefused = {
    {"companyTable", "!2714 There is already an object named 'link_programma' in the database."},
    {"terminalTable", "!2714 There is already an object named 'link_programmaTerminale' in the database."},
    {"sectionList", "!207 Invalid column name 'descrizione'."},
    {"paymentTermGrid", "!207 Invalid column name 'RataAnticipo'."},
};

/// What a statement of a kind answers on tables without rows: a heading and nothing below, no row written, or nothing.
bool isUsual(const samples::Quoted& sample, const std::string& said) {
    const std::string_view text =
        std::string_view(sample.text).substr(std::string_view(sample.text).find_first_not_of(' '));
    const std::string first = upper(text.substr(0, text.find(' ')));
    if (first == "SELECT") {
        return !said.starts_with("!") && !said.empty() && !said.starts_with("(") && !said.starts_with("-");
    }
    if (first == "UPDATE" || first == "DELETE") {
        return said == "(0)";
    }
    return said == "-" || said.ends_with("\n-");
}

TEST_F(Samples, RunOnTheTablesOfACompany) {
    for (const samples::Quoted& sample : samples::kStatements) {
        const std::string said = answer(sample.text);
        const auto refused = kRefused.find(sample.name);
        if (refused != kRefused.end()) {
            EXPECT_EQ(said, refused->second) << sample.name;
        } else if (sample.parseError != 0) {
            EXPECT_TRUE(said.starts_with("!" + std::to_string(sample.parseError) + " ")) << sample.name << ": " << said;
        } else {
            EXPECT_TRUE(isUsual(sample, said)) << sample.name << ": " << said;
        }
    }
}

TEST_F(Samples, FindAndWriteTheirRows) {
    run("set identity_insert progetti on insert into progetti (id, titolobreve) values (10000002, 'pozzi')");
    run("insert into AbilitazioneAccessi (NomeUtente, PaswUtente) values ('Mario', 'segreto')");
    EXPECT_EQ(answer("update progetti set iddate = CONVERT(DATETIME, '2004-3-7', 102) where id =10000002"), "(1)");
    EXPECT_EQ(rows("Select id,titolobreve,IdDate from progetti  order by  titolobreve"),
              "10000002|pozzi|2004-03-07 00:00:00.000");
    EXPECT_EQ(
        rows("select NomeUtente from AbilitazioneAccessi where  NomeUtente = 'mario' and  PaswUtente = 'segreto'"),
        "Mario");
    run("insert into partitadoppia (numerotransazione, idsede, idconto, idprogettorendiconto, datatransazione,"
        " datareport, definito) values (12, 1, 300, 10000002, '20040301', '20040301', 0),"
        " (12, 1, 301, 10000002, '20040301', '20040301', 0), (13, 1, 101, 10000002, '20040301', '20040301', 0),"
        " (14, 1, 300, 10000002, '20040401', '20040401', 1)");
    const auto text = [](std::string_view name) {
        for (const samples::Quoted& sample : samples::kStatements) {
            if (name == sample.name) {
                return sample.text;
            }
        }
        return "";
    };
    EXPECT_EQ(answer(text("projectReopen")), "(1)");
    EXPECT_EQ(answer(text("projectClose")), "(2)");
    EXPECT_EQ(rows("select numerotransazione, definito from partitadoppia order by numerotransazione"),
              "12|-1\n12|-1\n13|0\n14|0");
    EXPECT_EQ(answer(text("projectTransaction")), "(2)");
}

/// A text that was cut off is refused or runs; it never breaks the server.
TEST_F(Samples, CutAnywhereAreRefusedOrRun) {
    int refused = 0;
    for (const samples::Quoted& sample : samples::kStatements) {
        const std::string_view text = sample.text;
        for (std::size_t length = 0; length < text.size(); ++length) {
            refused += answer(text.substr(0, length)).find('!') != std::string::npos ? 1 : 0;
        }
    }
    EXPECT_GT(refused, 1000);
}

} // namespace
} // namespace engine
