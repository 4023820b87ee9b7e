"""pyodbc over unixODBC and FreeTDS: parameters by sp_prepexec."""

import sys

here = sys.path.pop(0)  # this file has the name of the module that it needs
import pyodbc  # noqa: E402

sys.path.insert(0, here)

import datetime  # noqa: E402
import decimal  # noqa: E402
import os  # noqa: E402
import threading  # noqa: E402

from checks import LONG, check, finish  # noqa: E402

TEXT = (
    f"Driver=libtdsodbc.so;Server=127.0.0.1;Port={os.environ['PEER_PORT']};UID=sa;PWD=segreta;Database=prova;"
    "TDS_Version=7.4;ClientCharset=UTF-8"
)
connection = pyodbc.connect(TEXT, autocommit=False)
cursor = connection.cursor()


def value(*parameters, statement="SELECT ? AS v"):
    cursor.execute(statement, *parameters)
    return cursor.fetchone()[0]


def results(statement):
    cursor.execute(statement)
    all_results = [[tuple(row) for row in cursor.fetchall()]]
    while cursor.nextset():
        all_results.append([tuple(row) for row in cursor.fetchall()] if cursor.description else cursor.rowcount)
    return all_results


def rolled_back():
    cursor.execute("CREATE TABLE pyodbc_t (n int)")
    connection.commit()
    cursor.execute("INSERT INTO pyodbc_t VALUES (?)", 1)
    connection.rollback()
    return value(statement="SELECT COUNT(*) FROM pyodbc_t")


def cancelled():
    cursor.execute("INSERT INTO pyodbc_t VALUES (1), (2), (3), (4), (5), (6), (7), (8), (9), (10)")
    connection.commit()
    timer = threading.Timer(0.3, cursor.cancel)
    timer.start()
    names = ", ".join(f"pyodbc_t {name}" for name in "abcdefghi")
    try:
        cursor.execute(f"SELECT COUNT(*) FROM {names}")
        return "not cancelled"
    except pyodbc.Error:
        timer.join()
        connection.rollback()
        return value(statement="SELECT COUNT(*) FROM pyodbc_t")


def long_parameter():
    cursor.setinputsizes([(pyodbc.SQL_WLONGVARCHAR, 0, 0)])
    cursor.execute("CREATE TABLE pyodbc_l (t ntext)")
    cursor.execute("INSERT INTO pyodbc_l VALUES (?)", LONG)
    cursor.setinputsizes(None)
    return value(statement="SELECT t FROM pyodbc_l")


check("pyodbc", "batch", lambda: results("SELECT 1; SELECT N'città', NULL"), [[(1,)], [("città", None)]])
for name, sent in {
    "int": -5,
    "bigint": 2**40,
    "bit": True,
    "float": 0.1,
    "decimal": decimal.Decimal("-12345.678"),
    "nvarchar": "d'è",
    "datetime": datetime.datetime(2004, 3, 7, 13, 14, 15),  # without fraction: the driver asks sp_datatype_info for it
    "date": datetime.date(2004, 3, 7),
    "null": None,
}.items():
    wanted = datetime.datetime(2004, 3, 7) if name == "date" else sent
    check("pyodbc", "parameter " + name, lambda sent=sent: value(sent), wanted)
check("pyodbc", "two parameters", lambda: value(5, 7, statement="SELECT ? - ?"), -2)
check("pyodbc", "roll-back", rolled_back, 0)
check("pyodbc", "cancel", cancelled, 10)
check("pyodbc", "long literal", lambda: value(statement=f"SELECT N'{LONG}'"), LONG)
check("pyodbc", "long parameter", long_parameter, LONG)
finish()
