#!/usr/bin/env python3
"""Makes tessaro.pas from api/tessaro.json.

    bindings/pascal/generate.py              write it
    bindings/pascal/generate.py --check      fail if it is not what the description says
    bindings/pascal/generate.py --calls FILE write what the test calls functions by their names with
"""
import sys
from pathlib import Path

here = Path(__file__).resolve().parent
sys.path.insert(0, str(here.parent))
from description import Description, finish, results_of, short_name, wrapped  # noqa: E402

plain = {"int32_t": "Integer", "uint32_t": "Cardinal", "uint16_t": "Word", "int16_t": "SmallInt", "intptr_t": "NativeInt",
         "uintptr_t": "NativeUInt", "float": "Single", "double": "Double", "void*": "Pointer"}
pointers = {"uint32_t": "PCardinal", "int32_t": "PInteger", "double": "PDouble", "void": "Pointer", "ImageRecord": "PImageRecord",
            "WaveBuffer": "PWaveBuffer"}
reserved = {"and", "array", "begin", "case", "const", "div", "do", "end", "file", "for", "function", "if", "in", "mod", "not", "of", "or",
            "out", "program", "record", "set", "shl", "shr", "string", "then", "to", "type", "unit", "until", "uses", "var", "while",
            "with", "xor"}


def identifier(name):
    return "&" + name if name.lower() in reserved else name


def type_of(c_type):
    if c_type.endswith("*") and c_type != "void*":
        return pointers[c_type.replace("const ", "").rstrip("*")]
    return plain.get(c_type, c_type)


def heading(name, parameters, result):
    """A function or procedure; neighbours of one type share it."""
    parts = []
    for parameter, c_type in parameters:
        if parts and parts[-1][1] == type_of(c_type):
            parts[-1][0].append(identifier(parameter))
        else:
            parts.append(([identifier(parameter)], type_of(c_type)))
    listed = "; ".join(f"{', '.join(names)}: {one}" for names, one in parts)
    kind, end = ("procedure", "") if result == "void" else ("function", f": {type_of(result)}")
    return f"{kind}{' ' + name if name else ''}{f'({listed})' if listed else ''}{end}"


convention = "{$IFDEF WIN32} stdcall {$ELSE} cdecl {$ENDIF}"


def documented(f):
    lines = wrapped(f.brief, 112, "// ")
    if f.text:
        lines += ["//", *wrapped(f.text, 112, "// ")]
    for p in f.parameters:
        size = f" At least {p.stated}." if p.kind == "memory" else ""
        lines += wrapped(f"{p.name}: {p.text}{size}", 108, "//   ", "//     ")
    for text in results_of(f):
        lines += wrapped(f"Result {text}", 108, "//   ", "//     ")
    return "\n".join(lines) + "\n"


def unit(api):
    out = ["// Made by bindings/pascal/generate.py from the description of the functions. Do not edit.\n//\n"
           "// For Free Pascal and Delphi. Memory is passed by its address, and nothing is measured: what a parameter needs is told\n"
           "// with it.\nunit Tessaro;\n\n{$IFDEF FPC} {$MODE DELPHI} {$PACKRECORDS C} {$ENDIF}\n\ninterface\n\n"
           "const\n  TessaroLibrary = {$IFDEF MSWINDOWS} 'tessaro.dll' {$ELSE} {$IFDEF FPC} 'tessaro' {$ELSE} 'libtessaro.so' "
           "{$ENDIF} {$ENDIF};\n\n"]
    for e in api.enums:
        out.append(f"// {short_name(e)}: {e['brief']}\nconst\n" + "".join(
            f"  {one['name']} = {one['value']};  // {one['text']}\n" for one in e["constants"]) + "\n")
    out.append("type\n")
    for one in api.records:
        out.append("".join(f"  {line}\n" for line in wrapped(one["brief"], 110, "// ")) +
                   f"  P{one['name']} = ^T{one['name']};\n  T{one['name']} = record\n" +
                   "".join(f"    {field['name']}: {type_of(field['type'])};\n" for field in one["fields"]) + "  end;\n\n")
    for one in api.callbacks.values():
        arguments = [(p["name"], p["type"]) for p in one["parameters"]]
        calls = "cdecl" if one["convention"] == "cdecl" else convention
        out.append("".join(f"  {line}\n" for line in wrapped(one["brief"], 110, "// ")) +
                   f"  {one['name']} = {heading('', arguments, one['result'])}; {calls};\n\n")
    for f in api.functions:
        head = heading(identifier(f.name), [(p.name, p.type) for p in f.parameters], f.result)
        out.append(f"{documented(f)}{head};\n  {convention}; external TessaroLibrary name '{f.name}';\n\n")
    return "".join(out) + """implementation

uses
  Math;

initialization
  // The library expects what C promises: arithmetic that raises nothing. Threads that Pascal did not begin need it too.
  SetExceptionMask([exInvalidOp, exDenormalized, exZeroDivide, exOverflow, exUnderflow, exPrecision]);

end.
"""


def calls(api):
    rows = []
    for f in api.functions:
        if any(p.kind in ("function", "handle") for p in f.parameters):
            continue
        passed = ", ".join(f"A[{i}].Real" if p.real else f"{type_of(p.type)}(A[{i}].Number)" if p.kind == "number" else f"A[{i}].Memory"
                           for i, p in enumerate(f.parameters))
        call = f"Tessaro.{identifier(f.name)}{f'({passed})' if passed else ''};"
        rows.append(f"    '{f.name}': {'' if f.result == 'void' else 'Result := '}{call}\n")
    return "function Make(const Name: string; const A: array of TArgument): Int64;\nbegin\n  Result := 0;\n  case Name of\n" + \
        "".join(rows) + "  else\n    raise Exception.Create('no function ' + Name);\n  end;\nend;\n"


def main():
    api = Description()
    if "--calls" in sys.argv:
        Path(sys.argv[-1]).write_text(calls(api), encoding="utf-8")
    else:
        finish({here / "tessaro.pas": unit(api)}, __file__)


if __name__ == "__main__":
    main()
