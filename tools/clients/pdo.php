<?php
// PDO's driver over DB-Library: values are written into the text by the driver.
$failed = false;
function check(string $name, callable $action, $wanted): void {
    global $failed;
    try {
        $got = $action();
        $why = $got === $wanted ? null : substr(var_export($got, true), 0, 200);
    } catch (Throwable $error) {
        $why = $error->getMessage();
    }
    $failed = $failed || $why !== null;
    echo "pdo: $name " . ($why === null ? "ok" : "FAILED: $why") . "\n";
}
$db = new PDO("dblib:host=127.0.0.1:" . getenv("PEER_PORT") . ";dbname=prova;charset=UTF-8", "sa", "segreta");
$db->setAttribute(PDO::ATTR_ERRMODE, PDO::ERRMODE_EXCEPTION);
function value(string $statement, array $parameters = []) {
    global $db;
    $prepared = $db->prepare($statement);
    $prepared->execute($parameters);
    $value = $prepared->fetchColumn();
    $prepared->closeCursor();
    return $value;
}
$long = str_repeat("è", 20000);
check("batch", function () use ($db) {
    $statement = $db->query("SELECT 1; SELECT N'città'");
    $first = $statement->fetchColumn();
    $statement->nextRowset();
    return [$first, $statement->fetchColumn()];
}, [1, "città"]);
check("parameter int", fn() => value("SELECT ? + 0", [-5]), -5);
check("parameter text", fn() => value("SELECT CAST(? AS nvarchar(9))", ["d'è"]), "d'è");
check("parameter null", fn() => value("SELECT CAST(? AS int)", [null]), null);
check("error", function () {
    try {
        return value("SELECT * FROM manca");
    } catch (PDOException $error) {
        return strtok($error->errorInfo[2], "[");
    }
}, "Invalid object name 'manca'. ");
check("roll-back", function () use ($db) {
    $db->exec("CREATE TABLE pdo_t (n int)");
    $db->beginTransaction();
    $written = $db->exec("INSERT INTO pdo_t VALUES (1), (2)");
    $db->rollBack();
    return [$written, value("SELECT COUNT(*) FROM pdo_t")];
}, [2, 0]);
check("rows left unread", function () use ($db) {
    $db->exec("INSERT INTO pdo_t VALUES (1), (2), (3), (4), (5), (6), (7), (8), (9), (10)");
    $statement = $db->query("SELECT a.n FROM pdo_t a, pdo_t b, pdo_t c, pdo_t d");
    $statement->fetch();
    $statement->closeCursor();
    return value("SELECT COUNT(*) FROM pdo_t");
}, 10);
check("long literal", fn() => value("SELECT N'$long'"), $long);
exit($failed ? 1 : 0);
