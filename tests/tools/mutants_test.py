"""Which changes are found in a source, and which places aren't changed."""

import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools" / "mutate"))
from mutants import mutants


def changes(source, kind):
    return [mutant.apply(source) for mutant in mutants(source) if mutant.kind == kind]


class Mutants(unittest.TestCase):
    def test_an_operator_between_blanks_becomes_its_neighbour(self):
        self.assertEqual(changes("x = a < b;", "operator"), ["x = a <= b;"])
        self.assertEqual(changes("x = a && b;", "operator"), ["x = a || b;"])

    def test_a_negation_goes(self):
        self.assertEqual(changes("x = !y;", "operator"), ["x = y;"])

    def test_template_brackets_are_no_operators(self):
        self.assertEqual(changes("std::vector<int> x;", "operator"), [])

    def test_a_number_a_text_and_a_truth_change(self):
        self.assertEqual(changes("f(12);", "literal"), ["f(13);"])
        self.assertEqual(changes('f("a\\"b");', "literal"), ['f("a\\"b~");'])
        self.assertEqual(changes("f(true);", "literal"), ["f(false);"])

    def test_digits_of_a_name_or_a_fraction_are_no_number(self):
        self.assertEqual(changes("x1 = 1.5;", "literal"), [])

    def test_comments_and_preprocessor_lines_stay(self):
        self.assertEqual(mutants('#include "a.h"\n// a == b, 1\n/* true\n && */\n'), [])

    def test_a_statement_goes_whole_with_what_it_holds(self):
        self.assertEqual(
            changes("{ salta([&] { rs.Close(); }); }", "statement"),
            ["{ ; }", "{ salta([&] { ; }); }"],
        )

    def test_an_assignment_goes_and_a_declaration_stays(self):
        self.assertEqual(changes("{ int x = f(); x += 2; }", "statement"), ["{ int x = f(); ; }"])

    def test_a_result_becomes_the_empty_one(self):
        self.assertEqual(changes("{ return a + b; }", "statement"), ["{ return {}; }"])

    def test_a_condition_is_held_true_and_false_behind_what_it_declares(self):
        self.assertEqual(
            changes("if (auto x = f(); x) g();", "condition"),
            ["if (auto x = f(); false) g();", "if (auto x = f(); true) g();"],
        )
        self.assertEqual(changes("while (a) g();", "condition"), ["while ( false) g();"])

    def test_a_change_tells_its_line(self):
        self.assertEqual([mutant.line for mutant in mutants("\n\nf(1);\n")], [3])


if __name__ == "__main__":
    unittest.main()
