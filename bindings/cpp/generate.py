#!/usr/bin/env python3
"""Makes include/tessaro/constants.hpp, the scoped constants and the table of codecs of C++, from api/tessaro.json.

    bindings/cpp/generate.py            write it
    bindings/cpp/generate.py --check    fail if it is not what the description says
"""
import json
import os
import re
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
OUT = os.path.join(ROOT, "include", "tessaro", "constants.hpp")


def scoped(enum):
    """TESSARO_TURN_HALF of TessaroTurn is Turn::half; digits are no name: TESSARO_FORMAT_565 is Format::f565."""
    name = enum["name"].removeprefix("Tessaro")
    shared = os.path.commonprefix([constant["name"] for constant in enum["constants"]])
    shared = shared[:shared.rindex("_") + 1]
    rows = []
    for constant in enum["constants"]:
        short = constant["name"][len(shared):].lower()
        short = short if short[0].isalpha() else shared.split("_")[-2][0].lower() + short
        rows.append(f"  {short} = {constant['name']},  ///< {constant['text']}")
    return f"/// {enum['brief']}\nenum class {name} : int32_t {{\n" + "\n".join(rows) + "\n};\n"


def codecs(functions):
    """Every encoder of a stream, with the decoder that is told both sizes."""
    names = {function["name"] for function in functions}
    rows, values = [], []
    for function in functions:
        match = re.fullmatch(r"(\w+?)Encoder(Ex)?", function["name"])
        if function["group"] != "streams" or not match:
            continue
        base, ex = match[1], match[2] or ""
        decoder = base + "Decoder" + ex
        decoder = decoder + "Safe" if decoder + "Safe" in names else decoder
        value = (base + ("_ex" if ex else ""))
        values.append(f"  {value},  ///< {function['brief']}")
        rows.append(f'      {{"{value}", {function["name"]}, {decoder}}},')
    return ("/// Lossless stream formats.\nenum class Codec : int32_t {\n" + "\n".join(values) + "\n};\n\n"
            "/// The functions behind a format.\nstruct CodecFunctions {\n  const char* name;\n"
            "  int32_t(TESSARO_CALL* encode)(const void*, void*, uint32_t, uint32_t*);\n"
            "  int32_t(TESSARO_CALL* decode)(const void*, void*, uint32_t, uint32_t);\n};\n\n"
            "inline const CodecFunctions& functions_of(Codec codec) {\n"
            "  static constexpr CodecFunctions all[] = {\n" + "\n".join(rows) +
            "\n  };\n  return all[static_cast<int32_t>(codec)];\n}\n")


def main():
    with open(os.path.join(ROOT, "api", "tessaro.json"), encoding="utf-8") as file:
        api = json.load(file)
    parts = [scoped(enum) for enum in api["enums"] if "Reverb" not in enum["name"]] + [codecs(api["functions"])]
    text = ("// Made by bindings/cpp/generate.py from the description of the functions. Do not edit.\n#pragma once\n\n"
            '#include <cstdint>\n\n#include "tessaro/tessaro.h"\n\nnamespace tessaro {\n\n// clang-format off\n\n' +
            "\n".join(parts) + "\n// clang-format on\n\n}  // namespace tessaro\n")
    if "--check" in sys.argv:
        with open(OUT, encoding="utf-8") as file:
            if file.read() != text:
                sys.exit("include/tessaro/constants.hpp:1: not what the description says; run bindings/cpp/generate.py")
    else:
        with open(OUT, "w", encoding="utf-8") as file:
            file.write(text)


if __name__ == "__main__":
    main()
