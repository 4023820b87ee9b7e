#!/usr/bin/perl
# DBD::Sybase over CT-Library.
use strict;
use warnings;
use utf8;
use DBI;

binmode STDOUT, ':utf8';
my $failed = 0;

sub check {
    my ($name, $action, $wanted) = @_;
    my $got = eval { $action->() };
    my $why = $@ ? $@ : defined $got && $got eq $wanted ? undef : substr($got // 'undef', 0, 200);
    $failed ||= defined $why;
    print "perl: $name ", defined $why ? "FAILED: $why\n" : "ok\n";
}

my $port = $ENV{PEER_PORT};
my $db = DBI->connect("dbi:Sybase:host=127.0.0.1;port=$port;database=prova;charset=UTF-8",
    'sa', 'segreta', { PrintError => 0, RaiseError => 1, syb_enable_utf8 => 1 });
my $long = 'x' x 20000;
check('batch', sub { join '|', map { $_->[0] } @{ $db->selectall_arrayref("SELECT 1 UNION ALL SELECT 2") } }, '1|2');
check('text', sub { my ($text) = $db->selectrow_array("SELECT N'città'"); utf8::decode($text); $text }, 'città');
check('error', sub { eval { $db->do('SELECT * FROM manca') }; $db->err }, 208);
check('parameter', sub { ($db->selectrow_array('SELECT CAST(? AS int) + 1', undef, 41))[0] }, 42);
check('roll-back', sub {
    $db->do('CREATE TABLE perl_t (n int)');
    $db->do($_) for 'BEGIN TRAN', 'INSERT INTO perl_t VALUES (1)', 'ROLLBACK';
    ($db->selectrow_array('SELECT COUNT(*) FROM perl_t'))[0];
}, 0);
check('rows left unread', sub {
    $db->do('INSERT INTO perl_t VALUES (1), (2), (3), (4), (5), (6), (7), (8), (9), (10)');
    my $statement = $db->prepare('SELECT a.n FROM perl_t a, perl_t b, perl_t c, perl_t d');
    $statement->execute;
    $statement->fetch;
    $statement->finish;
    ($db->selectrow_array('SELECT COUNT(*) FROM perl_t'))[0];
}, 10);
# For a max type this client takes as much memory as the type could need: the text is sent and not read.
check('long literal', sub { ($db->selectrow_array("SELECT LEN('$long')"))[0] }, 20000);
exit $failed;
