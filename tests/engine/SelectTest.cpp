#include "engine/SessionFixture.h"

namespace engine {
namespace {

class Select : public SessionTest {
protected:
    Select() {
        run("create table ElencoSedi (idsede int not null primary key, Città nvarchar(50) null, idstato int null,"
            " attiva bit not null default 1)");
        run("create table stati (IdStato int identity(1,1) not null primary key, descstato nvarchar(50) null)");
        run("insert into stati (descstato) values ('Italia'), ('Francia'), (null)");
        run("insert into ElencoSedi (idsede, Città, idstato) values (1, 'Roma', 1), (2, 'Parigi', 2), (3, 'roma ', 1),"
            " (4, null, null)");
    }
};

struct Case {
    const char* text;
    const char* rows;
};

TEST_F(Select, Answers) {
    constexpr Case cases[] = {
        {"select 1", "1"},
        {"select * from elencosedi where IDSEDE = 1", "1|Roma|1|1"},
        {"select idsede from ElencoSedi where città = 'ROMA' order by idsede", "1\n3"},
        {"select idsede from ElencoSedi where Città like 'roma'", "1\n3"},
        {"select idsede from ElencoSedi where not Città = 'ROMA'", "2"},
        {"select idsede from dbo.elencosedi where idsede = '2'", "2"},
        {"select count(*) from elencosedi", "4"},
        {"select count(Città) from elencosedi", "3"},
        {"select E.idsede, S.descstato from ElencoSedi as E left join stati as S on E.idstato = S.idstato"
         " order by E.idsede",
         "1|Italia\n2|Francia\n3|Italia\n4|NULL"},
        {"select top 2 idsede from elencosedi order by idsede desc", "4\n3"},
        {"select idsede from elencosedi order by Città, idsede", "4\n2\n1\n3"},
        {"select distinct Città from elencosedi order by Città", "NULL\nParigi\nRoma"},
        {"select idstato, count(*) as n from elencosedi group by idstato having count(*) > 1", "1|2"},
        {"select idsede from elencosedi where idstato in (select idstato from stati where descstato = 'francia')", "2"},
        {"select idsede from elencosedi where idsede between 2 and 3 order by 1", "2\n3"},
        {"select 'a' + null", "NULL"},
        {"select 7 / 2, 7 % 4, -7 / 2, 7.0 / 2", "3|3|-3|3.500000"},
        {"select 0.1 + 0.2", "0.3"},
        {"select '1' + 2", "3"},
        {"select case when 1 = 1 then 'si' else 'no' end", "si"},
        {"select avg(idsede), sum(idsede), min(Città), max(Città) from elencosedi", "2|10|Parigi|Roma"},
        {"select convert(datetime, '2004-3-7', 102)", "2004-03-07 00:00:00.000"},
        {"select attiva from elencosedi where attiva = 'true' and idsede = 1", "1"},
        {"select name from master.dbo.sysdatabases where name like 'pro%'", "prova"},
        {"select idsede from elencosedi where idsede < 3 union select 9 order by 1", "1\n2\n9"},
    };
    for (const Case& one : cases)
        EXPECT_EQ(rows(one.text), one.rows) << one.text;
}

} // namespace
} // namespace engine
