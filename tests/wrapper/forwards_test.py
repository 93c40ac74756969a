"""Reads the C++ wrapper's headers: its functions are to hand every argument on to the parameter that it is meant for,
call the export that they are named after, no export twice, and answer what it answers. Types are the compiler's affair,
and owners, locks and scopes that of the programs that use them."""
import json
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
PARAMETERS = {export["name"]: [parameter["name"] for parameter in export["parameters"]]
              for export in json.loads((ROOT / "api/exports.json").read_text())["exports"]}

# Parameters, all or those of one export, that the wrapper calls something else or decides itself.
OTHER_NAMES = {
    "bits": "bmBits", "bitsPixel": "bits|bmBitsPixel", "centerFill": "fillCenter", "count": "size", "dstRect": "dst",
    "dx": "0", "edgeFlags": "0", "filter": r"operation\) \| colorKey|word|ZORVIC_FILTER_NEAREST", "flags": "tiles",
    "height": "bmHeight", "mode": "operation|kernel|filter", "op": "transform", "out": "info", "pattern": "lengths",
    "rects": "slices", "reserved": "nullptr", "stride": "bmWidthBytes", "value": "amount|changeValue",
    "width": "bmWidth", "DrawBitmapEx dst": "nullptr"}
ITSELF = {"canvas", "bitmap", "texture", "path", "gradient", "source", "MixCanvas dst", "BlendCanvas dst", "CopyBitmap dst",
          "BlurBitmap dst"}
# Functions, and exports, whose names have no word in common.
OTHER_WORDS = {"Surface": "GetBitmap", "View": "GetTexture", "Dc": "GetCanvasHandle", "SetOperation": "Filter",
               "OperationWord": "Filter", "TransferTo": "GdiTransCanvas", "FillPixels": "SetColor", "Delete": "Destroy",
               "ToSurface": "ToDevice", "ToLogical": "ToWindow", "Create": "Create", "StyleScope": "Save|Restore",
               "bitmap": "LockBitmapBits"}
GENERAL_WORDS = {"Set", "Get", "Draw", "Add", "Create", "To"}
TWICE = {"DrawBitmapEx"}  # with a rectangle, and without one

NESTED = r"(?:[^()]|\((?:[^()]|\([^()]*\))*\))*"
CALL = re.compile(rf"(?<![\w>])::(?P<name>\w+)\((?P<arguments>{NESTED})\)"
                  r"(?P<after>\)*(?:\s*!=\s*0|\s\? surface : nullptr\) \{\})?[;}]?)\s*(?:return (?P<answer>\w+);)?")
FUNCTION = re.compile(r"^ *(?:\[\[nodiscard\]\] )?(?!return\b)[\w:<>&~* ]*?(\w+)\(", re.M)


def arguments_of(call):
    return [part.strip() for part in re.findall(rf"(?:[^,()]|\({NESTED}\))+", call["arguments"])]


def faults_of(call, function):
    export = call["name"]
    arguments, parameters = arguments_of(call), PARAMETERS[export]
    if len(arguments) != len(parameters):
        yield f"{len(arguments)} arguments"
    for argument, parameter in zip(arguments, parameters):
        others = "|".join(OTHER_NAMES.get(key, parameter) for key in (parameter, f"{export} {parameter}"))
        itself = parameter in ITSELF or f"{export} {parameter}" in ITSELF
        if not (itself and re.fullmatch(r"handle|Get\(\)|surface|reinterpret_cast<HGTEXTURE>\(handle\)", argument)
                or re.search(rf"(?i)\b({parameter}|{others})\b", argument)):
            yield f"{argument} for {parameter}"
    words = {re.sub("(ed|s)$", "", word) for word in re.findall("[A-Z][a-z]+", function)} - GENERAL_WORDS
    if not re.search("|".join([OTHER_WORDS.get(function, "-"), *words]), export):
        yield "another export's name"
    if call["after"][-1:] not in (";", "}") or (call["answer"] and f"&{call['answer']}" not in arguments):
        yield "another answer"


failed = 0
called = set()
for header in sorted((ROOT / "include/zorvic").glob("*.hpp")):
    text = re.sub("//.*", "", header.read_text())
    for call in CALL.finditer(text):
        function = [name[1] for name in FUNCTION.finditer(text, 0, call.start("name"))][-1]
        faults = list(faults_of(call, function))
        if call["name"] in called - TWICE:
            faults.append("called twice")
        called.add(call["name"])
        for fault in faults:
            print(f"{header.name}: {function} calls {call['name']}: {fault}")
            failed = 1
sys.exit(failed or len(called) < 140)
