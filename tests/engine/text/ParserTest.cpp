#include "engine/text/Parser.h"

#include "engine/text/Print.h"

#include <gtest/gtest.h>

namespace engine {
namespace {

struct TreeCase {
    const char* text;
    const char* tree; ///< one line a statement
};

void PrintTo(const TreeCase& tree, std::ostream* out) {
    *out << tree.text;
}

class Tree : public testing::TestWithParam<TreeCase> {};

TEST_P(Tree, IsWhatTheTextSays) {
    EXPECT_EQ(print(parse(GetParam().text)), std::string(GetParam().tree) + "\n");
}

INSTANTIATE_TEST_SUITE_P(
    Expressions, Tree,
    testing::Values(
        TreeCase{"select 1 + 2 * 3 - -4 % 5", "(select (- (+ 1 (* 2 3)) (% (- 4) 5)))"},
        TreeCase{"select (1 + 2) * +3 / a", "(select (/ (* (+ 1 2) (+ 3)) (column a)))"},
        TreeCase{"select * from t where not a = 1 and b = 2 or c = 3",
                 "(select * (from (table t)) (where (or (and (not (= (column a) 1)) (= (column b) 2)) (= (column c) "
                 "3))))"},
        TreeCase{"select * from t where not idchiave  like '%.0'",
                 "(select * (from (table t)) (where (not (like (column idchiave) '%.0'))))"},
        TreeCase{"select * from t where a not like 'x!%' escape '!' and b not in (1, 'y', null)",
                 "(select * (from (table t)) (where (and (not-like (column a) 'x!%' (escape '!')) (not-in (column b) 1 "
                 "'y' null))))"},
        TreeCase{"select * from t where a between 1 + 1 and 2 and b not between c and d",
                 "(select * (from (table t)) (where (and (between (column a) (+ 1 1) 2) (not-between (column b) "
                 "(column c) (column d)))))"},
        TreeCase{"select * from t where a is null and not b is not null and not not c = 1",
                 "(select * (from (table t)) (where (and (and (is-null (column a)) (not (is-not-null (column b)))) "
                 "(not (not (= (column c) 1))))))"},
        TreeCase{"select * from t where not exists (select a from u where u.a = t.a) and b in (select c from v)",
                 "(select * (from (table t)) (where (and (not (exists (select (column a) (from (table u)) (where (= "
                 "(column u.a) (column t.a)))))) (in (column b) (select (column c) (from (table v)))))))"},
        TreeCase{"select * from t where (a + b) * 2 > 3 and ((a = b))",
                 "(select * (from (table t)) (where (and (> (* (+ (column a) (column b)) 2) 3) (= (column a) (column "
                 "b)))))"},
        TreeCase{"select * from t where a <> 1 and b != 2 and c !< 3 and d !> 4 and e >= (select max(f) from u)",
                 "(select * (from (table t)) (where (and (and (and (and (<> (column a) 1) (<> (column b) 2)) (>= "
                 "(column c) 3)) (<= (column d) 4)) (>= (column e) (scalar (select (call max (column f)) (from (table "
                 "u))))))))"},
        TreeCase{"select count(*), COUNT(DISTINCT a), sum(all b), left(c, 2), coalesce(d, 0), current_timestamp, "
                 "@@identity, getdate()",
                 "(select (call count *) (call COUNT distinct (column a)) (call sum (column b)) (call left (column c) "
                 "2) (call coalesce (column d) 0) (call current_timestamp) @@identity (call getdate))"},
        TreeCase{"select case a when 1 then 'x' else N'y' end, case when a > 1 or b = 2 then 1 when c = 3 then 2 end",
                 "(select (case (column a) (when 1 'x') (else N'y')) (case (when (or (> (column a) 1) (= (column b) "
                 "2)) 1) (when (= (column c) 3) 2)))"},
        TreeCase{"select cast(a as varchar), convert(DATETIME, '2004-3-7', 102), convert(nvarchar(max), b)",
                 "(select (cast varchar(30) (column a)) (convert datetime '2004-3-7' 102) (convert nvarchar(max) "
                 "(column b)))"},
        TreeCase{"select [Nome ]] strano], \"doppio\", città, t.[x y].z",
                 "(select (column Nome ] strano) (column doppio) (column città) (column t.x y.z))"},
        TreeCase{"select 2147483648, 1.50, 1e3, 'l''età', null", "(select 2147483648 1.50 1e3 'l'età' null)"}));

INSTANTIATE_TEST_SUITE_P(
    Selects, Tree,
    testing::Values(
        TreeCase{"select T.*, dbo.t.*, *, a as b, c d, e 'f', g as 'h', x = a + 1, 'y' = 2",
                 "(select T.* dbo.t.* * (as b (column a)) (as d (column c)) (as f (column e)) (as h (column g)) (as x "
                 "(+ (column a) 1)) (as y 2))"},
        TreeCase{"select distinct top (5) a, b from t group by a, b having count(*) > 1",
                 "(select distinct (top 5) (column a) (column b) (from (table t)) (group-by (column a) (column b)) "
                 "(having (> (call count *) 1)))"},
        TreeCase{"select top 3 * from t order by 1 desc, a asc, b + c",
                 "(order-by (select (top 3) * (from (table t))) (desc 1) (column a) (+ (column b) (column c)))"},
        TreeCase{"select 1 union select 2 union all select 3 order by 1",
                 "(order-by (union-all (union (select 1) (select 2)) (select 3)) 1)"},
        TreeCase{"select * from a, b as c with (nolock, holdlock), d e (nolock)",
                 "(select * (from (table a) (table b c (hint nolock) (hint holdlock)) (table d e (hint nolock))))"},
        TreeCase{"select * from (( A AS T left JOIN B as P ON T.x = P.x) left JOIN C ON T.y = C.y) left JOIN D AS E  "
                 "ON T.z = E.z order by T.Id",
                 "(order-by (select * (from (left-join (left-join (left-join (table A T) (table B P) (= (column T.x) "
                 "(column P.x))) (table C) (= (column T.y) (column C.y))) (table D E) (= (column T.z) (column E.z))))) "
                 "(column T.Id))"},
        TreeCase{"select * from a cross join b right outer join c on a.x = c.x full join d on 1 = 1 inner join e on 2 "
                 "= 2",
                 "(select * (from (inner-join (full-join (right-join (cross-join (table a) (table b)) (table c) (= "
                 "(column a.x) (column c.x))) (table d) (= 1 1)) (table e) (= 2 2))))"},
        TreeCase{"select * from a join b join c on b.x = c.x on a.x = b.x",
                 "(select * (from (inner-join (table a) (inner-join (table b) (table c) (= (column b.x) (column c.x))) "
                 "(= (column a.x) (column b.x)))))"},
        TreeCase{"select * from (select 1 a union select 2) as x, (select 3 b) y",
                 "(select * (from (derived (union (select (as a 1)) (select 2)) x) (derived (select (as b 3)) y)))"},
        TreeCase{"select * from master..sysdatabases, srv.db.dbo.t",
                 "(select * (from (table master..sysdatabases) (table srv.db.dbo.t)))"}));

INSTANTIATE_TEST_SUITE_P(
    Changes, Tree,
    testing::Values(
        TreeCase{"insert into t values (1, default), (-2, N'x')", "(insert t (row 1 default) (row (- 2) N'x'))"},
        TreeCase{"insert dbo.t (a, [b c]) select 1, 2 from u",
                 "(insert dbo.t (columns a b c) (select 1 2 (from (table u))))"},
        TreeCase{"insert t (select 1)", "(insert t (select 1))"},
        TreeCase{"insert into t default values", "(insert t default-values)"},
        TreeCase{"update t set a = 1, t.b = default from t join u on t.a = u.a where b = 1",
                 "(update t (set a 1) (set t.b default) (from (inner-join (table t) (table u) (= (column t.a) (column "
                 "u.a)))) (where (= (column b) 1)))"},
        TreeCase{"update [a b] set definito =-1 ", "(update a b (set definito (- 1)))"},
        TreeCase{"delete t", "(delete t)"},
        TreeCase{"delete from t where a = 1", "(delete t (where (= (column a) 1)))"},
        TreeCase{"truncate table dbo.t", "(truncate dbo.t)"}));

INSTANTIATE_TEST_SUITE_P(
    Definitions, Tree,
    testing::Values(
        TreeCase{"CREATE TABLE [t] (  [id] [int] IDENTITY (1, 1) NOT NULL ,  [n] [nvarchar] (255)   NULL , u bit not "
                 "null default '0')",
                 "(create-table t (column id int not-null (identity 1 1)) (column n nvarchar(255) null) (column u bit "
                 "not-null (default '0')))"},
        TreeCase{"create table #t (id int identity primary key, b nvarchar constraint df default ('x') null, c "
                 "decimal(10,2) default -1.5 unique, constraint k unique nonclustered (b desc, c asc)) on [primary]",
                 "(create-table #t (column id int not-null (identity 1 1)) (column b nvarchar(1) null (default df "
                 "'x')) (column c decimal(10,2) (default (- 1.5))) (primary-key (on id)) (unique (on c)) (unique k (on "
                 "b c)))"},
        TreeCase{"create table t (a int, B int, c int, constraint pk primary key clustered (A asc, b))",
                 "(create-table t (column a int not-null) (column B int not-null) (column c int) (primary-key pk (on A "
                 "b)))"},
        TreeCase{"create table Version (id int null, Version int not null default 1 )",
                 "(create-table Version (column id int null) (column Version int not-null (default 1)))"},
        TreeCase{"create table t (a int constraint pk primary key, b varchar(10) collate Latin1_General_CI_AS null,)",
                 "(create-table t (column a int not-null) (column b varchar(10) null) (primary-key pk (on a)))"},
        TreeCase{"create table t (a bit, b tinyint, c smallint, d integer, e bigint, f dec, g numeric(9), h money, "
                 "j float, k float(24), l real, m datetime)",
                 "(create-table t (column a bit) (column b tinyint) (column c smallint) (column d int) (column e "
                 "bigint) (column f decimal(18,0)) (column g decimal(9,0)) (column h money) "
                 "(column j float) (column k real) (column l real) (column m datetime))"},
        TreeCase{"create table t (a char, b varchar(8000), c nchar(4000), d nvarchar(max), e text, f ntext, g sysname, "
                 "h image, i varbinary(10))",
                 "(create-table t (column a char(1)) (column b varchar(8000)) (column c nchar(4000)) (column d "
                 "nvarchar(max)) (column e varchar(max)) (column f nvarchar(max)) (column g nvarchar(128)) (column h "
                 "varbinary(max)) (column i varbinary(10)))"},
        TreeCase{"alter table Ivasezionale add    descrizione nvarchar(255) not null default 'Sezionale Iva' ",
                 "(alter-table Ivasezionale (column descrizione nvarchar(255) not-null (default 'Sezionale Iva')))"},
        TreeCase{"alter table t with check add a int identity(5,-1), constraint k primary key (b), unique (c)",
                 "(alter-table t (column a int not-null (identity 5 -1)) (primary-key k (on b)) (unique (on c)))"},
        TreeCase{"create unique clustered index i on t (a, b desc)",
                 "(create-index unique i t (column a) (desc (column b)))"},
        TreeCase{"create index j on dbo.t(a)", "(create-index j dbo.t (column a))"},
        TreeCase{"drop table if exists a, dbo.b", "(drop-table if-exists a dbo.b)"},
        TreeCase{"drop database [x y]", "(drop-database x y)"}, TreeCase{"drop index i on t", "(drop-index t.i)"},
        TreeCase{"drop index t.i", "(drop-index t.i)"}, TreeCase{"create database x", "(create-database x)"},
        TreeCase{"CREATE DATABASE [x]  ON PRIMARY (NAME = N'x_dat', FILENAME = 'C:\\d\\x.mdf' ,  FILEGROWTH = 10%, "
                 "MAXSIZE = UNLIMITED), (NAME = y, FILENAME = N'y.ndf', SIZE = 5MB) LOG ON (NAME = N'x_log', FILENAME "
                 "= 'x.ldf' , SIZE = 2) COLLATE Latin1_General_CI_AS",
                 "(create-database x (file x_dat C:\\d\\x.mdf) (file y y.ndf) (log x_log x.ldf))"}));

INSTANTIATE_TEST_SUITE_P(
    Batches, Tree,
    testing::Values(
        TreeCase{"sp_configure 'query timeout',0 RECONFIGURE",
                 "(execute sp_configure 'query timeout' 0)\n(reconfigure)"},
        TreeCase{"EXEC sys.sp_configure N'a', N'1'  RECONFIGURE WITH OVERRIDE\r\n EXEC b \r\n RECONFIGURE WITH "
                 "OVERRIDE ",
                 "(execute sys.sp_configure N'a' N'1')\n(reconfigure with-override)\n(execute b)\n(reconfigure "
                 "with-override)"},
        TreeCase{"execute p -1, @b = N'c', bare, null, @@spid", "(execute p (- 1) (@b N'c') N'bare' null @@spid)"},
        TreeCase{"GO", "(execute GO)"},
        TreeCase{"set nocount, ansi_nulls on set textsize 1 set lock_timeout -1 set quoted_identifier off",
                 "(set nocount ansi_nulls on)\n(set textsize 1)\n(set lock_timeout -1)\n(set quoted_identifier off)"},
        TreeCase{"set identity_insert dbo.t on set dateformat dmy set language 'italiano' set statistics io on",
                 "(set identity_insert dbo.t on)\n(set dateformat dmy)\n(set language italiano)\n(set statistics io "
                 "on)"},
        TreeCase{"set transaction isolation level read committed set transaction isolation level serializable",
                 "(set TRANSACTION ISOLATION LEVEL READ COMMITTED)\n(set TRANSACTION ISOLATION LEVEL SERIALIZABLE)"},
        TreeCase{"begin tran a commit transaction rollback work commit",
                 "(begin-transaction)\n(commit)\n(rollback)\n(commit)"},
        TreeCase{"if not exists (select 1) create database x else begin select 2; select 3 end",
                 "(if (not (exists (select 1))) (create-database x) (else (block (select 2) (select 3))))"},
        TreeCase{"if 1 = 1 print 'a' + 'b'; else print 'c'", "(if (= 1 1) (print (+ 'a' 'b')) (else (print 'c')))"},
        TreeCase{";; use [x y] ; select 1 select 2;;", "(use x y)\n(select 1)\n(select 2)"}));

TEST(Batch, OfNothingHoldsNothing) {
    EXPECT_TRUE(parse("").statements.empty());
    EXPECT_TRUE(parse(" \r\n-- only a remark\n/* and another */ ; ").statements.empty());
}

TEST(Defaults, AreKeptAsWritten) {
    const BatchTree batch = parse("create table t (a int default ( 0 ) not null, b int default -1)");
    const auto& columns = std::get<CreateTable>(batch.statements.front()->node).columns;
    EXPECT_EQ(columns[0].defaultText, "( 0 )");
    EXPECT_EQ(columns[1].defaultText, "-1");
    EXPECT_EQ(print(*parseExpression(columns[0].defaultText)), "0");
}

} // namespace
} // namespace engine
