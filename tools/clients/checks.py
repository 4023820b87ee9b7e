"""What the Python clients have in common: a check that says whether it passed."""

import sys

LONG = "è" * 20000
failed = False


def check(client, name, action, wanted):
    global failed
    try:
        got = action()
        passed = got == wanted
        why = f"{got!r:.200}, not {wanted!r:.200}"
    except Exception as error:  # whatever a client raises is its answer
        passed = False
        why = str(error)
    failed = failed or not passed
    print(f"{client}: {name} " + ("ok" if passed else f"FAILED: {why}"))


def finish():
    sys.exit(1 if failed else 0)
