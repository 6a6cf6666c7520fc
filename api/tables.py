"""The model behind the tables: reads api/*.toml and expands every entry into its functions.

A member is "types : descriptors"; each type with each descriptor is one function, whose name is
keli<operation>_<type>_<descriptor>. An argument is written as its name where the name tells its
role (pSrc, dstStep, roiSize, ...), else as name:role or name:role:type, a blank in a type as ~.
"""

import re
import tomllib
from dataclasses import dataclass, field
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
TABLES = ["core", "data", "convert", "border", "mirror", "arith", "division", "complex", "math", "logic", "threshold", "compare", "sums", "extremes", "norms", "histogram", "box", "morphology", "remap", "luma", "hue", "cie", "dither", "fft", "dct"]

# Names whose role needs no mention in a table; every other argument is written name:role[:type].
ROLE_OF_NAME = {
    "pSrc": "source", "pSrc1": "source", "pSrc2": "source", "pDst": "destination",
    "pSrcDst": "inOut", "pMask": "mask", "roiSize": "region", "value": "constant",
    "scaleFactor": "scaleFactor", "cmpOp": "compareOp", "hint": "hint",
    "srcSize": "sourceRegion", "srcRoiSize": "sourceRegion", "srcROI": "sourceRect",
    "dstRoiSize": "region", "maskSize": "maskSize", "anchor": "anchor", "pxMap": "map",
    "pyMap": "map", "topBorderHeight": "topBorder", "leftBorderWidth": "leftBorder",
    "flip": "axis", "interpolation": "interpolation", "roundMode": "roundMode",
    "vMin": "rangeMin", "vMax": "rangeMax", "srcBitOffset": "bitOffset",
    "dstBitOffset": "bitOffset", "noise": "noise", "dither": "dither", "levels": "grayLevels",
}
# inOutWithin: read where the source region lies within it and written as a whole.
IMAGES = {"source", "destination", "inOut", "inOutWithin", "mask", "map", "sourceChannel",
          "destinationChannel"}
WRITTEN = {"destination", "destinationChannel", "inOut", "inOutWithin"}
# Which source pixels a destination pixel depends on: the one at its place, the 3 x 3 around that,
# those that the arguments maskSize and anchor tell, or any.
REACHES = {"pixel", "3x3", "mask", "image"}
# One value for C1, an array of one for each channel otherwise: of this type, or of the samples'.
# lower and upper are the ends of a range of samples.
CONSTANTS = {"constant": "", "shift": "32u", "lower": "", "upper": ""}
# What a function writes beside images: one value for C1, an array of one for each channel
# otherwise. Of counts and levels each channel has an array, as long as its number of levels says.
RESULTS = {"result", "counts", "levelsOut"}
# Specification structures, of a type that the argument names: read, released or made.
SPECS = {"spec": "const {}*", "ownedSpec": "{}*", "specOut": "{}**"}
LAYOUT = re.compile(r"A?[CP]\d")
DESCRIPTOR = re.compile(r"((?:A?[CP]\d){1,2})(C?)(I?)(M?)(R?)(Sfs)?")
TYPE_CODE = re.compile(r"\d+(?:uc|sc|fc|u|s|f)")


@dataclass
class Argument:
    name: str
    role: str
    c_type: str  # without the array part
    array: str  # "[3]" or ""
    sample: str = ""  # type code of images, constants and results
    layout: str = ""  # of images

    @property
    def pointer(self):
        return bool(self.array) or self.c_type.endswith(("*", "* const"))

    @property
    def planar(self):
        return self.role in IMAGES and "P" in self.layout

    @property
    def pixel(self):
        """Bytes from one pixel to the next, as a C expression."""
        samples = 1 if "P" in self.layout else int(self.layout[-1])
        return f"{samples} * sizeof({kel(self.sample)})"

    @property
    def declaration(self):
        return f"{self.c_type} {self.name}{self.array}"


@dataclass
class Function:
    name: str
    entry: dict
    types: list
    layouts: list
    descriptor: str = ""
    in_place: bool = False
    arguments: list = field(default_factory=list)
    actuals: list = field(default_factory=list)  # of the frame call
    returns: str = "KelStatus"

    @property
    def operation(self):
        """The name up to the types: of keliThreshold_GT_8u_C1R it is Threshold_GT."""
        return re.match(r"keli(.+?)(?=_\d+[usf]|$)", self.name)[1]

    @property
    def reach(self):
        return self.entry.get("reach", "pixel")

    @property
    def parallel(self):
        """An entry's key parallel lists such members, or is true where all are."""
        members = self.entry.get("parallel", [])
        return members is True or self.name in members

    @property
    def team(self):
        """How the frame walks the rows."""
        return "Team::kThreads" if self.parallel else "Team::kCaller"

    @property
    def prototype(self):
        arguments = ", ".join(a.declaration for a in self.arguments) or "void"
        return f"{self.returns} {self.name}({arguments})"

    @property
    def definition(self):
        """The prototype without the names of arguments that are never read."""
        arguments = ", ".join(a.c_type if a.role == "unread" else a.declaration
                              for a in self.arguments)
        return f"{self.returns} {self.name}({arguments})"


def kel(code):
    """The C type of a sample; of 1u, the one that holds eight of them."""
    return {"32u": "uint32_t", "1u": "Kel8u"}.get(code, f"Kel{code}")


def number(code):
    """The C type of a number that is no sample."""
    return "int" if code == "32s" else kel(code)


def used_channels(layout):
    return 3 if layout.startswith("A") else int(layout[-1])


# ---- Arguments ---------------------------------------------------------------------------------

def make_argument(word, types, layouts):
    name, _, rest = word.partition(":")
    role, _, given = rest.partition(":")
    role = role or ROLE_OF_NAME.get(name) or ("step" if name.endswith("Step") else "")
    first, last = types[0] if types else "", types[-1] if types else ""
    if role in SPECS:
        return Argument(name, role, SPECS[role].format(given), "")
    given, _, layout_given = given.partition("_")
    if role in ("source", "sourceChannel"):
        code, layout, const = given or first, layouts[0], "const "
    elif role in WRITTEN:
        code, layout, const = given or last, layout_given or layouts[-1], ""
    elif role == "mask":
        code, layout, const = "8u", "C1", "const "
    elif role == "map":
        code, layout, const = "32f", "C1", "const "
    if role in IMAGES:
        if "P" in layout:
            return Argument(name, role, f"{const}{kel(code)}* const", f"[{layout[-1]}]", code,
                            layout)
        return Argument(name, role, f"{const}{kel(code)}*", "", code, layout)
    if role in CONSTANTS:
        code = given or CONSTANTS[role] or first
        if layouts[0] == "C1":
            return Argument(name, role, kel(code), "", code)
        return Argument(name, role, f"const {kel(code)}", f"[{used_channels(layouts[0])}]", code)
    if role in RESULTS | {"levels", "levelCount", "levelBound"}:
        return per_channel(name, role, given or last, layouts[0])
    fixed = {
        "step": ("int", ""), "region": ("KeliSize", ""), "scaleFactor": ("int", ""),
        "scalar": (kel(given or first), ""), "order": ("const int", "[3]"),
        "extent": ("int", ""), "stepOut": ("int*", ""), "block": ("void*", ""),
        "unread": (given.replace("~", " "), ""), "compareOp": ("KelCmpOp", ""),
        "hint": ("KelHintAlgorithm", ""), "tolerance": (kel(given or first), ""),
        "sourceRegion": ("KeliSize", ""), "sourceRect": ("KeliRect", ""),
        "maskSize": ("KeliSize", ""), "anchor": ("KeliPoint", ""),
        "element": ("const Kel8u*", ""), "topBorder": ("int", ""), "leftBorder": ("int", ""),
        "axis": ("KelAxis", ""), "interpolation": ("KelInterpolation", ""),
        "roundMode": ("KelRoundMode", ""), "bitOffset": ("int", ""),
        "rangeMin": ("Kel32f", ""), "rangeMax": ("Kel32f", ""), "noise": ("int", ""),
        "dither": ("int", ""), "grayLevels": ("int", ""),
        "sizeOut": ("int*", ""), "buffer": ("void*", ""), "number": ("int", ""),
    }
    if role not in fixed:
        raise SystemExit(f"argument '{word}': unknown role '{role}'")
    c_type, array = fixed[role]
    sample = {"scalar": given or first, "tolerance": given or first, "rangeMin": "32f",
              "rangeMax": "32f", "element": "8u"}.get(role, "")
    return Argument(name, role, c_type, array, sample)


def per_channel(name, role, code, layout):
    """A result or a parameter of which every channel has its own: code is the type of its
    numbers."""
    array = "" if layout == "C1" else f"[{used_channels(layout)}]"
    const = "const " if role == "levels" else ""
    if role == "result":
        return Argument(name, role, number(code) if array else f"{number(code)}*", array, code)
    if role in ("levelCount", "levelBound"):
        return Argument(name, role, "const int" if array else "int", array)
    return Argument(name, role, f"{const}{number(code)}*{' const' if array else ''}", array, code)


def in_place_words(line):
    """The argument words of an in-place member: the destination takes the last source's place, and
    constants that stand before the destination stand first. A line that names the in-place image
    itself is as it is."""
    items = line.split()
    if "pSrcDst" in [w.split(":")[0] for w in items]:
        return items
    sources = [i for i, w in enumerate(items) if w.split(":")[0].startswith("pSrc")]
    last = sources[-1]
    gone = [i for i, w in enumerate(items) if w.split(":")[0] in ("pDst", "dstStep")]
    first = [w for w in items[:gone[0]] if w.split(":")[0] == "value"]
    items[last] = "pSrcDst"
    if items[last + 1].endswith("Step"):  # blocks have none
        items[last + 1] = "srcDstStep"
    if len(sources) == 2:
        items[sources[0]], items[sources[0] + 1] = "pSrc", "srcStep"
    kept = [w for i, w in enumerate(items) if i not in gone]
    return first + [w for w in kept if w not in first]


def in_place_actuals(line):
    """What the frame's arguments (the out-of-place ones) are called in the in-place member."""
    names = [w.split(":")[0] for w in line.split()]
    if "pSrcDst" in names:
        return names
    two = "pSrc2" in names
    renamed = {"pDst": "pSrcDst", "dstStep": "srcDstStep"}
    if two:
        renamed |= {"pSrc1": "pSrc", "src1Step": "srcStep", "pSrc2": "pSrcDst",
                    "src2Step": "srcDstStep"}
    else:
        renamed |= {"pSrc": "pSrcDst", "srcStep": "srcDstStep"}
    return [renamed.get(n, n) for n in names]


# ---- Checks ------------------------------------------------------------------------------------

def null_condition(function):
    late = "values" in function.entry.get("checks", "").split()
    earlier = "nullSpec" in function.entry.get("checks", "").split()
    pointers = [a for a in function.arguments
                if a.pointer and not (late and a.role in CONSTANTS) and a.role != "buffer"
                and not (earlier and a.role == "spec")]
    parts = [f"anyNull({', '.join(a.name for a in pointers)})"]
    parts += [f"anyPlaneNull<{a.layout[-1]}>({a.name})" for a in pointers if a.planar]
    return " || ".join(parts)


def names_of(function, role):
    return ", ".join(a.name for a in function.arguments if a.role == role)


def over_channels(function):
    """Whether the function is its one-channel member over more samples."""
    return function.layouts[0] in ("C3", "C4")


def divisor_condition(function):
    divisor = next(a for a in function.arguments if a.role == "constant")
    return f"anyZero({divisor.name}, {divisor.array.strip('[]') or 1})" if divisor.array else \
        f"isZero({divisor.name})"


def late_condition(function):
    arrays = [a.name for a in function.arguments if a.role in CONSTANTS and a.array]
    return f"anyNull({', '.join(arrays)})" if arrays else ""


def pair_condition(name):
    """A condition on the ends of a range, of every channel."""
    def condition(function):
        ends = [a for a in function.arguments if a.role in ("lower", "upper")]
        names = [a.name for a in sorted(ends, key=lambda a: a.role)]
        count = [ends[0].array.strip("[]")] if ends[0].array else []
        return f"{name}({', '.join(names + count)})"
    return condition


def histogram_condition(array, text):
    def condition(function):
        count = next(a for a in function.arguments if a.role == "counts").array.strip("[]")
        return text.format(counts=names_of(function, "counts"), channels=count,
                           levels=names_of(function, "levels") or names_of(function, "levelsOut"),
                           n=names_of(function, "levelCount")) if bool(count) == array else ""
    return condition


def row_condition(function):
    """Rows that are shorter than what is read or written of them."""
    margin = {"3x3": "2", "mask": "maskSize.width - 1"}[function.reach]
    size, out = names_of(function, "region"), []
    for image, step in zip(function.arguments, function.arguments[1:]):
        if image.role in IMAGES:
            read = image.role != "destination"
            out.append(f"shortStep({step.name}, {size}, {margin if read else 0}, {image.pixel})")
    return " || ".join(out)


def all_of(function, *roles):
    return ", ".join(names_of(function, role) for role in roles)


# Check word: (status name, text for the documentation, condition that fails; "" = not applicable).
# Without a status name, the condition is an expression that gives the status.
CHECKS = {
    "null": ("kelStatusNullPointer", "a pointer is null", null_condition),
    "width": ("kelStatusBadSize", "the width is below 1 (C3 and C4)",
              lambda f: f"badWidth({names_of(f, 'region')})" if over_channels(f) else ""),
    "area": ("kelStatusBadSize", "roiSize is below 1 in width or height (C3 and C4)",
             lambda f: f"badSize({names_of(f, 'region')})" if over_channels(f) else ""),
    "size": ("kelStatusBadSize", "roiSize is below 1 in width or height",
             lambda f: f"badSize({names_of(f, 'region')})"),
    "step": ("kelStatusBadStep", "a step is below 1",
             lambda f: f"anyBadStep({names_of(f, 'step')})"),
    "values": ("kelStatusNullPointer", "an array of values is null", late_condition),
    "divisor": ("kelStatusDivisorZero", "the constant, or one of its channels, is 0",
                divisor_condition),
    "order": ("kelStatusBadChannelOrder", "an entry of dstOrder is outside 0..2",
              lambda f: f"badChannelOrder({names_of(f, 'order')})"),
    "operation": ("kelStatusBadCompareOp", "cmpOp is neither kelCmpLess nor kelCmpGreater",
                  lambda f: f"badThresholdOp({names_of(f, 'compareOp')})"),
    "thresholds": ("kelStatusBadThresholds", "not thresholdGT >= thresholdLT, in any channel",
                   pair_condition("badThresholds")),
    "bounds": ("kelStatusBadRange", "lowerBound > upperBound in any channel",
               pair_condition("badRange")),
    "epsilon": ("kelStatusBadEpsilon", "not eps >= 0",
                lambda f: f"!({names_of(f, 'tolerance')} >= 0)"),
    "span": ("kelStatusEmptyRange", "not vMax - vMin > 0",
             lambda f: f"!({names_of(f, 'rangeMax')} - {names_of(f, 'rangeMin')} > 0)"),
    "bits": ("kelStatusBadRange", "the bit offset is outside 0..7",
             lambda f: f"badBitOffset({names_of(f, 'bitOffset')})"),
    "borders": ("kelStatusBadSize",
                "a width or height is below 1, a border is below 0, or the destination is smaller "
                "than the source and the top and left borders together",
                lambda f: "badBorders(" + all_of(f, "sourceRegion", "region", "topBorder",
                                                 "leftBorder") + ")"),
    "maskSize": ("kelStatusBadMaskSize", "maskSize is below 1 in width or height",
                 lambda f: f"badSize({names_of(f, 'maskSize')})"),
    "boxSize": ("kelStatusBadMaskSize", "maskSize is below 2 in width or height",
                lambda f: f"badBoxSize({names_of(f, 'maskSize')})"),
    "anchor": ("kelStatusBadAnchor", "anchor lies outside the mask",
               lambda f: f"badAnchor({all_of(f, 'anchor', 'maskSize')})"),
    "element": ("kelStatusZeroMask", "every byte of the mask is 0",
                lambda f: f"allZero({all_of(f, 'element', 'maskSize')})"),
    "row": ("kelStatusStepTooSmall", "a step is shorter than the row that is read or written",
            row_condition),
    "axis": ("kelStatusBadAxis", "flip is none of the axes",
             lambda f: f"badAxis({names_of(f, 'axis')})"),
    "sizes": ("kelStatusBadSize",
              "srcSize, srcROI or dstRoiSize is below 1 in width or height, or srcROI.x or "
              "srcROI.y is below 0",
              lambda f: f"badRemapSizes({all_of(f, 'sourceRegion', 'sourceRect', 'region')})"),
    "interpolation": ("kelStatusBadInterpolation", "interpolation is none of the modes",
                      lambda f: f"badInterpolation({names_of(f, 'interpolation')})"),
    "nullSpec": ("kelStatusNullPointer", "pSpec is null",
                 lambda f: f"anyNull({names_of(f, 'spec')})"),
    "spec": ("kelStatusBadSpec", "pSpec is not of the kind that the function takes",
             lambda f: f"fft::badSpec({names_of(f, 'spec')})"),
    "noise": ("kelStatusBadNoise", "dither is a method and noise is outside 0..100",
              lambda f: f"badNoise({all_of(f, 'dither', 'noise')})"),
    "grayLevels": ("kelStatusBadLevelCount",
                   "dither is a method and levels is outside 2..256 (8u results) or 2..65536",
                   lambda f: f"badGrayLevels<{kel(f.types[-1])}>"
                             f"({all_of(f, 'dither', 'grayLevels')})"),
    "channels": ("", "of C3, AC4 and C4, channel by channel, kelStatusNullPointer if its histogram "
                 "or its levels are null, kelStatusBadHistogramLevels if its nLevels is below 2",
                 histogram_condition(True, "histogramStatus({counts}, {levels}, {n}, {channels})")),
    "levels": ("kelStatusBadHistogramLevels", "nLevels is below 2 (C1)",
               histogram_condition(False, "{n} < 2")),
}


# ---- Functions ---------------------------------------------------------------------------------

def expand(entry):
    """All functions of an entry."""
    returns = entry.get("returns", "KelStatus")
    line = entry["arguments"]
    for name in entry.get("names", []):
        f = Function(name, entry, [], [], returns=returns)
        # keliFFTFree_R_32f: R_32f; keliDCTInvFree_32f: Inv
        form, way = name.partition("_")[2], name[7:10]
        words = line.replace("{form}", form).replace("{way}", way).split()
        f.arguments = [make_argument(w, [], []) for w in words]
        f.actuals = [a.name for a in f.arguments if a.role != "unread"]
        yield f
    for member in entry.get("members", []):
        types, _, descriptors = member.partition(":")
        for operation in entry["operation"].split():
            for code in types.split():
                for descriptor in descriptors.split():
                    yield make_function(entry, operation, code, descriptor, returns, line)


def make_function(entry, operation, code, descriptor, returns, line):
    match = DESCRIPTOR.fullmatch(descriptor)
    if not match:
        raise SystemExit(f"{operation}: descriptor '{descriptor}' is not in the grammar")
    types, layouts = TYPE_CODE.findall(code), LAYOUT.findall(match[1])
    f = Function(f"keli{operation}_{code}_{descriptor}", entry, types, layouts, descriptor,
                 bool(match[3]), returns=returns.format(T=kel(types[0])))
    items = in_place_words(line) if f.in_place else line.split()
    f.arguments = [make_argument(w, types, layouts) for w in items]
    f.actuals = in_place_actuals(line) if f.in_place else [a.name for a in f.arguments]
    return f


def load():
    tables = []
    for name in TABLES:
        table = tomllib.loads((ROOT / "api" / f"{name}.toml").read_text())
        for entry in table["entry"]:
            unknown = set(entry.get("checks", "").split()) - CHECKS.keys()
            if unknown:
                raise SystemExit(f"api/{name}.toml: unknown checks {sorted(unknown)}")
            if entry.get("reach", "pixel") not in REACHES:
                raise SystemExit(f"api/{name}.toml: unknown reach '{entry['reach']}'")
            entry["functions"] = list(expand(entry))
            listed = entry.get("parallel", [])
            unknown = set() if listed is True else set(listed) - {f.name for f in entry["functions"]}
            if unknown:
                raise SystemExit(f"api/{name}.toml: unknown parallel members {sorted(unknown)}")
        tables.append(table)
    names = [f.name for t in tables for e in t["entry"] for f in e["functions"]]
    if len(names) != len(set(names)):
        raise SystemExit(f"listed twice: {sorted({n for n in names if names.count(n) > 1})}")
    return tables
