#!/usr/bin/env python3
"""Writes tests/fiscal/CaratteriDiControllo.h: what another program says of tax codes.

    python3 tools/check-characters.py > tests/fiscal/CaratteriDiControllo.h

It needs Debian's python3-stdnum. First the check characters of 20 000 codes. The codes themselves aren't in the table:
the test draws the same ones, by the same generator from the same seed. Every second fiscal code has letters and digits
where a person's has them, the others have any of the 36 characters anywhere. Then whole codes of which that program
says the opposite of ours, with the reason.
"""

import sys

try:
    from stdnum import luhn
    from stdnum.it import codicefiscale, iva
except ImportError:
    sys.exit("check-characters.py: python3-stdnum is missing")

LETTERS = "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
DIGITS = "0123456789"
PERSON = "AAAAAA99A99A999"
HOW_MANY = 10_000
PER_LINE = 100

CODES_THAT_DIFFER = [
    ("rssmra85t10a562s", "small letters"),
    ("RSSMRA 85T10A562S", "a blank"),
    ("RSSMRA-85T10-A562S", "hyphens"),
    ("RSSMRA85T10A562SX", "more than sixteen characters"),
    ("AAAAAAAAAAAAAAAI", "letters where a person's code has digits"),
    ("123456789012345A", "digits where a person has letters"),
    ("RSSMRA85T35A562G", "no such day"),
    ("RSSMRA85F10A562R", "no such month"),
    ("RSSMRA85B30A562G", "no such date"),
    ("00743110157", "a VAT number"),
]
NUMBERS_THAT_DIFFER = [
    ("IT00743110157", "the country in front"),
    ("743110157", "without its zeros"),
    ("00000", "nothing but zeros"),
    ("00743110157000", "more than eleven digits"),
    ("00000001230", "no number of the company"),
    ("00743115552", "no such office"),
    ("00743 10159", "a blank in the place of a digit"),
    ("00743/10159", "a slash in the place of a digit"),
    ("0074311-0157", "a hyphen between digits"),
]

SEED = 20_240_229
state = SEED


def draw(characters):
    """The test's generator: the upper half of a 64-bit linear congruential one."""
    global state
    state = (state * 6364136223846793005 + 1442695040888963407) % 2**64
    return characters[(state >> 33) % len(characters)]


def fiscal_code(number):
    if number % 2 == 0:
        return "".join(draw(DIGITS if kind == "9" else LETTERS) for kind in PERSON)
    return "".join(draw(LETTERS + DIGITS) for _ in PERSON)


def vat_number():
    return "".join(draw(DIGITS) for _ in range(10))


def table(name, what, characters):
    print(f"\n/// {what}")
    print(f"inline constexpr std::string_view {name} =")
    lines = [characters[i : i + PER_LINE] for i in range(0, len(characters), PER_LINE)]
    print("\n".join(f'    "{line}"' for line in lines) + ";")


def differences(name, what, codes, check):
    print(f"\n/// {what}")
    print(f"inline constexpr Differenza {name}[] = {{")
    print("\n".join(f'    {{"{code}", "{why}", {str(check(code)).lower()}}},' for code, why in codes) + "\n};")


fiscal = "".join(codicefiscale.calc_check_digit(fiscal_code(i)) for i in range(HOW_MANY))
vat = "".join(luhn.calc_check_digit(vat_number()) for _ in range(HOW_MANY))

print("#pragma once\n")
print("// Written by tools/check-characters.py, with which to change it.\n")
print("#include <cstdint>\n#include <string_view>\n")
print("namespace vabo {\n")
print(f"inline constexpr std::uint64_t kSeme = {SEED};")
table("kCaratteriDeiCodici", "Of the fiscal codes, in the order in which they are drawn.", fiscal)
table("kCaratteriDellePartite", "Of the VAT numbers, which are drawn after them.", vat)
print("\nstruct Differenza {\n    const char* codice;\n    const char* perche;\n    bool valido; ///< there\n};")
differences("kCodiciDiversi", "Fiscal codes that are judged otherwise here.", CODES_THAT_DIFFER, codicefiscale.is_valid)
differences("kPartiteDiverse", "VAT numbers that are judged otherwise here.", NUMBERS_THAT_DIFFER, iva.is_valid)
print("\n} // namespace vabo")
