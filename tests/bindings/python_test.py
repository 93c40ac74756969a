"""Compares the Python binding with the headers, by a compiler for Windows: python_test.py BITS COMPILER...
A recorder stands where the DLL would be loaded. What the binding tells ctypes of each export (and each record and
constant) becomes assertions about the C++ declarations, which the compiler checks. Calls must reach the export of their
name with their arguments in order."""
import ctypes
import inspect
import re
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
BITS, COMPILER = int(sys.argv[1]), sys.argv[2:]


class Pointer(ctypes.c_uint32 if BITS == 32 else ctypes.c_uint64):
    """A pointer of the target, whatever this machine's are."""


class Recorder:
    def __init__(self, path):
        self.path, self.functions = path, {}

    def __getattr__(self, name):
        return self.functions.setdefault(name, Function())


class Function:
    def __call__(self, *arguments):
        self.arguments = arguments


ctypes.CDLL, ctypes.c_void_p, ctypes.POINTER = Recorder, Pointer, lambda kind: Pointer
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "bindings/python"))
import zorvic  # noqa: E402


def code(kind):
    """The kind of a type and its size, as Code<T> below."""
    if kind is None:
        return 0
    if issubclass(kind, Pointer):
        shape = 3
    elif issubclass(kind, ctypes.Structure):
        shape = 4
    elif kind in (ctypes.c_float, ctypes.c_double):
        shape = 2
    else:
        shape = 1 if kind(-1).value < 0 else 0
    return ctypes.sizeof(kind) * 10 + shape


source = """
#include <initializer_list>
#include <type_traits>
#include "zorvic/zorvic.h"

template <class T>
constexpr int Code() {
    if constexpr (std::is_void_v<T>) return 0;
    else return static_cast<int>(sizeof(T)) * 10 + (std::is_pointer_v<T> ? 3 : std::is_class_v<T> ? 4 :
                std::is_floating_point_v<T> ? 2 : std::is_signed_v<T> ? 1 : 0);
}
template <class> struct Function;
template <class Result, class... Arguments>
struct Function<Result(Arguments...)> {
    static constexpr bool Is(std::initializer_list<int> codes) {
        const int wanted[] = {Code<Result>(), Code<Arguments>()...};
        if (codes.size() != 1 + sizeof...(Arguments)) return false;
        for (std::size_t i = 0; i < codes.size(); ++i) if (wanted[i] != codes.begin()[i]) return false;
        return true;
    }
};
"""

faults = []
exports = re.findall(r'^    "?([^\s"]+)', (ROOT / f"src/api/zorvic{BITS}.def").read_text(), re.M)
if sorted(exports) != sorted(zorvic._dll.functions):
    faults.append(f"bound: {set(zorvic._dll.functions) ^ set(exports)} differ from the exports")
if f"zorvic{BITS}.dll" not in zorvic._dll.path:
    faults.append(f"loads {zorvic._dll.path}")

for name in exports:
    recorded = zorvic._dll.functions[name]
    plain = re.match(r"\??(\w+)", name)[1]
    codes = ", ".join(str(code(kind)) for kind in (recorded.restype, *recorded.argtypes))
    source += f'static_assert(Function<decltype({plain})>::Is({{{codes}}}), "{plain}");\n'
    call = getattr(zorvic, plain)
    arguments = {parameter: object() for parameter in inspect.signature(call).parameters}
    call(**arguments)
    if recorded.arguments != tuple(arguments.values()) or len(arguments) != len(recorded.argtypes):
        faults.append(f"{name} gets other arguments")
    if not call.__doc__:
        faults.append(f"{name} has no documentation")

for name, value in vars(zorvic).items():
    if isinstance(value, int) and name.isupper():
        source += f'static_assert(ZORVIC_{name} == {value}, "{name}");\n'
    elif inspect.isclass(value) and issubclass(value, ctypes.Structure) and value is not ctypes.Structure:
        source += f'static_assert(sizeof({name}) == {ctypes.sizeof(value)}, "{name}");\n'
        for field, kind in value._fields_:
            offset = getattr(value, field).offset
            source += f'static_assert(offsetof({name}, {field}) == {offset}, "{name}.{field}");\n'
            if not issubclass(kind, ctypes.Array):
                source += f'static_assert(Code<decltype({name}::{field})>() == {code(kind)}, "{name}.{field}");\n'

if source.count("ZORVIC_") < 50:
    faults.append("constants are missing")
compiler = [*COMPILER, "-std=c++20", "-fsyntax-only", f"-I{ROOT}/include", "-x", "c++", "-"]
if subprocess.run(compiler, input=source, text=True).returncode:
    faults.append("the compiler disagrees")
print(f"{len(exports)} exports, {source.count('static_assert')} assertions, {len(faults)} faults")
sys.exit("\n".join(faults) or 0)
