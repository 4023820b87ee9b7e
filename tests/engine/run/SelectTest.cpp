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
    constexpr Case kCases[] = {
        {"select 1", "1"},
        {"select * from elencosedi where IDSEDE = 1", "1|Roma|1|1"},
        {"select idsede from ElencoSedi where città = 'ROMA' order by idsede", "1\n3"},
        {"select idsede from ElencoSedi where Città like 'roma'", "1"},
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
    for (const Case& one : kCases) {
        EXPECT_EQ(rows(one.text), one.rows) << one.text;
    }
}

TEST_F(Select, NamesThatFitNothingAreRefused) {
    constexpr Case kCases[] = {
        {"select manca from stati", "!207 Invalid column name 'manca'."},
        {"select S.manca from stati as S", "!207 Invalid column name 'manca'."},
        {"select X.idstato from stati as S", "!4104 The multi-part identifier \"X.idstato\" could not be bound."},
        {"select stati.idstato from stati as S",
         "!4104 The multi-part identifier \"stati.idstato\" could not be bound."},
        {"select idstato from elencosedi, stati", "!209 Ambiguous column name 'idstato'."},
        {"select E.idstato, S.idstato from elencosedi E, stati S order by idstato",
         "!209 Ambiguous column name 'idstato'."},
        {"select * from manca", "!208 Invalid object name 'manca'."},
        {"select * from sys.stati", "!208 Invalid object name 'sys.stati'."},
        {"select * from sysdatabases", "!208 Invalid object name 'sysdatabases'."},
        {"select * from stati, STATI",
         "!1013 The objects \"stati\" and \"STATI\" in the FROM clause have the same exposed names. Use correlation"
         " names to distinguish them."},
        {"select *", "!263 Must specify table to select from."},
        {"select X.* from stati",
         "!107 The column prefix 'X' does not match with a table name or alias name used in the query."},
        {"select descstato, count(*) from stati",
         "!8120 Column 'stati.descstato' is invalid in the select list because it is not contained in either an"
         " aggregate function or the GROUP BY clause."},
        {"select 1 from stati where count(*) > 1",
         "!147 An aggregate may not appear in the WHERE clause unless it is in a subquery contained in a HAVING clause"
         " or a select list, and the column being aggregated is an outer reference."},
        {"select sum(descstato) from stati", "!8117 Operand data type nvarchar is invalid for sum operator."},
        {"select 1 union select 1, 2",
         "!205 All queries combined using a UNION, INTERSECT or EXCEPT operator must have an equal number of expressions"
         " in their target lists."},
        {"select 1 where 1 in (select 1, 2)",
         "!116 Only one expression can be specified in the select list when the subquery is not introduced with"
         " EXISTS."},
        {"select idstato from stati order by 2",
         "!108 The ORDER BY position number 2 is out of range of the number of items in the select list."},
    };
    for (const Case& one : kCases) {
        EXPECT_EQ(answer(one.text), one.rows) << one.text;
    }
}

TEST_F(Select, GroupsAndJoinsOfManyKinds) {
    constexpr Case kCases[] = {
        {"select left(descstato, 1), count(*) from stati group by left(descstato, 1) order by 1", "NULL|1\nF|1\nI|1"},
        {"select upper(Città), count(*) from elencosedi group by upper(Città) having upper(Città) is not null order by 2",
         "PARIGI|1\nROMA|2"},
        {"select count(distinct Città) from elencosedi", "2"},
        {"select S.idstato from elencosedi E right join stati S on E.idstato = S.idstato where E.idsede is null", "3"},
        {"select count(*) from elencosedi E full join stati S on E.idstato = S.idstato", "5"},
        {"select count(*) from elencosedi cross join stati", "12"},
        {"select d.n from (select idstato, count(*) as n from elencosedi group by idstato) as d where d.idstato = 1",
         "2"},
        {"select T.idsede from ((elencosedi as T left join stati as S on T.idstato = S.idstato) left join stati as Z on"
         " Z.idstato = S.idstato) where Z.descstato = 'Francia'",
         "2"},
        {"select (select descstato from stati S where S.idstato = E.idstato) from elencosedi E where idsede = 2",
         "Francia"},
        {"select sum(idsede) from elencosedi where idsede > 99", "NULL"},
        {"select count(*) from elencosedi where idsede > 99", "0"},
        {"select top 1 idsede from elencosedi union all select top 1 idstato from stati", "1\n1"},
        {"select count(*) from (select Città from elencosedi where idsede = 1 union select 'ROMA') as d", "1"},
        {"select 1 union all select 2.5 order by 1 desc", "2.5\n1.0"},
    };
    for (const Case& one : kCases) {
        EXPECT_EQ(rows(one.text), one.rows) << one.text;
    }
}

TEST_F(Select, LongChainsRunOrAreRefused) {
    std::string conditions = "select count(*) from elencosedi where idsede = 1";
    std::string sum = "select 1";
    for (int i = 0; i < 600; ++i) {
        conditions += " or idsede = " + std::to_string(i);
        sum += " + 1";
    }
    EXPECT_EQ(rows(conditions), "4");
    EXPECT_EQ(answer(sum).substr(0, 5), "!191 ");
}

} // namespace
} // namespace engine
