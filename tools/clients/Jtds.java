// jTDS: a client without FreeTDS, which prepares statements, sends typed parameters and cancels.

import java.math.BigDecimal;
import java.sql.Connection;
import java.sql.DriverManager;
import java.sql.PreparedStatement;
import java.sql.ResultSet;
import java.sql.SQLException;
import java.sql.Statement;
import java.sql.Timestamp;
import java.sql.Types;
import java.util.Objects;
import java.util.concurrent.Callable;

public class Jtds {
    static boolean failed = false;
    static Connection db;

    static void check(String name, Object wanted, Callable<Object> action) {
        String why = null;
        try {
            Object got = action.call();
            if (!Objects.equals(got, wanted)) {
                String text = String.valueOf(got);
                why = text.substring(0, Math.min(200, text.length()));
            }
        } catch (Exception error) {
            why = error.toString();
        }
        failed |= why != null;
        System.out.println("jtds: " + name + (why == null ? " ok" : " FAILED: " + why));
    }

    static Object value(String statement, Object... parameters) throws SQLException {
        try (PreparedStatement prepared = db.prepareStatement(statement)) {
            for (int i = 0; i < parameters.length; ++i) {
                prepared.setObject(i + 1, parameters[i]);
            }
            try (ResultSet rows = prepared.executeQuery()) {
                rows.next();
                return rows.getObject(1);
            }
        }
    }

    static Object nothing() throws SQLException {
        try (PreparedStatement prepared = db.prepareStatement("SELECT ?")) {
            prepared.setNull(1, Types.INTEGER);
            try (ResultSet rows = prepared.executeQuery()) {
                rows.next();
                return rows.getObject(1);
            }
        }
    }

    static Object batch() throws SQLException {
        try (Statement statement = db.createStatement()) {
            statement.execute("CREATE TABLE jtds_t (n int); INSERT INTO jtds_t VALUES (1), (2); SELECT N'città'");
            StringBuilder all = new StringBuilder();
            boolean rows = statement.getResultSet() != null;
            while (rows || statement.getUpdateCount() != -1) {
                if (rows) {
                    ResultSet result = statement.getResultSet();
                    result.next();
                    all.append(result.getString(1)).append(' ');
                } else {
                    all.append(statement.getUpdateCount()).append(' ');
                }
                rows = statement.getMoreResults();
            }
            return all.toString().trim();
        }
    }

    static Object rolledBack() throws SQLException {
        db.setAutoCommit(false);
        try (PreparedStatement insert = db.prepareStatement("INSERT INTO jtds_t VALUES (?)")) {
            for (int i = 0; i < 5; ++i) {
                insert.setInt(1, i);
                insert.executeUpdate();
            }
        }
        db.rollback();
        db.setAutoCommit(true);
        return value("SELECT COUNT(*) FROM jtds_t");
    }

    static Object cancelled() throws Exception {
        try (Statement statement = db.createStatement()) {
            statement.executeUpdate("INSERT INTO jtds_t VALUES (3), (4), (5), (6), (7), (8), (9), (10)");
            Thread canceller = new Thread(() -> {
                try {
                    Thread.sleep(300);
                    statement.cancel();
                } catch (InterruptedException | SQLException error) {
                    throw new RuntimeException(error);
                }
            });
            canceller.start();
            try {
                statement.executeUpdate("INSERT INTO jtds_t SELECT a.n FROM jtds_t a, jtds_t b, jtds_t c, jtds_t d,"
                        + " jtds_t e, jtds_t f, jtds_t g, jtds_t h WHERE a.n + b.n + c.n + d.n + e.n + f.n + g.n + h.n = 999");
                return "not cancelled";
            } catch (SQLException error) {
                canceller.join();
            }
        }
        return value("SELECT COUNT(*) FROM jtds_t");
    }

    public static void main(String[] arguments) throws Exception {
        Class.forName("net.sourceforge.jtds.jdbc.Driver");
        db = DriverManager.getConnection(
                "jdbc:jtds:sqlserver://127.0.0.1:" + System.getenv("PEER_PORT") + "/prova", "sa", "segreta");
        String text = "è".repeat(20000);
        check("batch", "2 città", Jtds::batch);
        check("parameter int", -5, () -> value("SELECT ?", -5));
        check("parameter bigint", 1L << 40, () -> value("SELECT ?", 1L << 40));
        check("parameter bit", true, () -> value("SELECT ?", true));
        check("parameter float", 0.1, () -> value("SELECT ?", 0.1));
        check("parameter decimal", new BigDecimal("-123.45"), () -> value("SELECT CAST(? AS decimal(9, 2))",
                new BigDecimal("-123.45")));
        check("parameter nvarchar", "d'è", () -> value("SELECT ?", "d'è"));
        check("parameter datetime", Timestamp.valueOf("2004-03-07 13:14:15.123"),
                () -> value("SELECT ?", Timestamp.valueOf("2004-03-07 13:14:15.123")));
        check("parameter null", null, Jtds::nothing);
        check("two parameters", -2, () -> value("SELECT ? - ?", 5, 7));
        check("roll-back", 2, Jtds::rolledBack);
        check("cancel", 10, Jtds::cancelled);
        check("long literal", 20000, () -> value("SELECT LEN(N'" + text + "')"));
        check("long parameter", 20000, () -> value("SELECT LEN(?)", text));
        check("error", 208, () -> {
            try {
                return value("SELECT * FROM manca");
            } catch (SQLException error) {
                return error.getErrorCode();
            }
        });
        System.exit(failed ? 1 : 0);
    }
}
