"""pymssql over DB-Library: values are written into the text, procedures are called by name."""

import sys

here = sys.path.pop(0)  # this file has the name of the module that it needs
import pymssql  # noqa: E402

sys.path.insert(0, here)

import datetime  # noqa: E402
import decimal  # noqa: E402
import os  # noqa: E402

from checks import LONG, check, finish  # noqa: E402

connection = pymssql.connect(
    server="127.0.0.1", port=os.environ["PEER_PORT"], user="sa", password="segreta", database="prova", charset="UTF-8"
)
cursor = connection.cursor()


def value(*parameters, statement="SELECT %s AS v"):
    cursor.execute(statement, parameters)
    return cursor.fetchone()[0]


def results(statement):
    cursor.execute(statement)
    all_results = [cursor.fetchall()]
    while cursor.nextset():
        all_results.append(cursor.fetchall())
    return all_results


def rolled_back():
    cursor.execute("CREATE TABLE pymssql_t (n int)")
    connection.commit()
    cursor.execute("INSERT INTO pymssql_t VALUES (%d)", 1)
    connection.rollback()
    return value(statement="SELECT COUNT(*) FROM pymssql_t")


def procedure():
    cursor.callproc("sp_configure", ("show advanced options",))
    return [row[0] for row in cursor]


def left_halfway():
    cursor.execute("INSERT INTO pymssql_t VALUES (1), (2), (3), (4), (5), (6), (7), (8), (9), (10)")
    connection.commit()
    cursor.execute("SELECT a.n FROM pymssql_t a, pymssql_t b, pymssql_t c, pymssql_t d")
    cursor.fetchone()
    cursor.execute("SELECT COUNT(*) FROM pymssql_t")  # DB-Library cancels what isn't read
    return cursor.fetchone()[0]


check("pymssql", "batch", lambda: results("SELECT 1; SELECT N'città', NULL"), [[(1,)], [("città", None)]])
for name, sent in {
    "int": -5,
    "float": 0.5,
    "decimal": decimal.Decimal("-12345.678"),
    "nvarchar": "d'è",
    "datetime": datetime.datetime(2004, 3, 7, 13, 14, 15),
    "null": None,
}.items():
    wanted = "2004-03-07 13:14:15.000" if name == "datetime" else sent
    check("pymssql", "parameter " + name, lambda sent=sent: value(sent), wanted)
check("pymssql", "procedure", procedure, ["show advanced options"])
check("pymssql", "roll-back", rolled_back, 0)
check("pymssql", "rows left unread", left_halfway, 10)
check("pymssql", "long literal", lambda: value(statement=f"SELECT N'{LONG}'"), LONG)
finish()
