"""Planted breaks of a promise are found, and a step of the minor version allows them."""

import unittest

import abi

then = {
    "functions": {"f": "void (int32_t)", "g": "int32_t ()"},
    "constants": {"ONE": 1},
    "types": {"R": "int16_t a; int16_t b"},
}


def changed(kind, **changes):
    now = {name: dict(promised) for name, promised in then.items()}
    now[kind].update(changes)
    now[kind] = {name: value for name, value in now[kind].items() if value is not None}
    return now


class Promise(unittest.TestCase):
    def test_breaks_are_found(self):
        for now, said in (
            (changed("functions", f=None), "f is lost"),
            (changed("functions", f="void (uint32_t)"), "f was void (int32_t) in 0.1.0 and is void (uint32_t)"),
            (changed("constants", ONE=2), "ONE was 1 in 0.1.0 and is 2"),
            (changed("types", R="int16_t b; int16_t a"), "R was int16_t a; int16_t b in 0.1.0 and is int16_t b; int16_t a"),
        ):
            self.assertEqual(abi.broken("0.1.5", now, "0.1.0", then), [said])
            self.assertEqual(abi.broken("0.2.0", now, "0.1.0", then), [])
            self.assertEqual(abi.broken("1.0.0", now, "0.1.0", then), [])

    def test_more_breaks_nothing_but_an_older_version_does(self):
        self.assertEqual(abi.broken("0.1.0", changed("functions", h="void ()"), "0.1.0", then), [])
        self.assertEqual(len(abi.broken("0.1.9", then, "0.1.10", then)), 1)

    def test_the_description_is_read(self):
        number = {"name": "n", "type": "int32_t"}
        function = {"name": "f", "returns": {"type": "void"}, "parameters": [number]}
        record = {"name": "R", "kind": "record", "fields": [number]}
        called = {"name": "C", "kind": "function", "convention": "cdecl", "result": "void", "parameters": [number]}
        enum = {"constants": [{"name": "ONE", "value": 1}]}
        self.assertEqual(
            abi.promise({"functions": [function], "types": [record, called], "enums": [enum]}),
            {
                "functions": {"f": "void (int32_t)"},
                "constants": {"ONE": 1},
                "types": {"R": "int32_t n", "C": "cdecl: void (int32_t)"},
            },
        )


if __name__ == "__main__":
    unittest.main()
