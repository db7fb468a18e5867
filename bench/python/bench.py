"""The price of the Python host, in one table.

One call through the host against the same native member bound directly with
pybind11 (paxorel_direct, built beside this file), and a walk of the C++
suite's 1 MB catalogue, alone and after its parse, through the host against
lxml and minidom (and the direct binding, for scale).

Every measurement runs once per repetition, the measurements of a repetition
in random order; the table shows medians. The garbage collector runs before
each measurement and, as in any program, during it: minidom's tree is made of
Python objects, and collecting while it grows is part of what its parse
costs. One row shows parse and walk with the collector off, as timeit would
run them.

    bench.py BUILD_DIR [REPETITIONS]
"""

import gc
import os
import random
import statistics
import sys
import time

BUILD = os.path.abspath(sys.argv[1])
REPETITIONS = int(sys.argv[2]) if len(sys.argv) > 2 else 15
sys.path[:0] = [os.path.join(BUILD, "python"), os.path.join(BUILD, "bench", "python")]

import xml.dom.minidom as minidom  # noqa: E402

from lxml import etree  # noqa: E402

import paxorel_direct as direct  # noqa: E402
import zelmar.io.xml.dom as dom  # noqa: E402

CALLS = 100_000
TEXT = direct.catalogue(1_000_000)  # the C++ suite's "1MB"
DATA = TEXT.encode()


def walk(node):
    """Host and direct binding alike: first child and next sibling, each
    node's type and name, every attribute value of each element."""
    count = 0
    stack = [node]
    while stack:
        node = stack.pop()
        while node is not None:
            count += 1
            if node.getNodeType() == 1:
                attributes = node.getAttributes()
                for i in range(int(attributes.getLength())):
                    attributes.item(i).getNodeValue()
            node.getNodeName()
            child = node.getFirstChild()
            if child is not None:
                stack.append(child)
            node = node.getNextSibling()
    return count


def walk_lxml(element):
    """lxml has no text nodes: its elements, comments and processing
    instructions, each one's tag and attribute values."""
    count = 0
    stack = [element]
    while stack:
        element = stack.pop()
        while element is not None:
            count += 1
            element.tag
            for _ in element.attrib.values():
                pass
            if len(element):
                stack.append(element[0])
            element = element.getnext()
    return count


def walk_minidom(node):
    count = 0
    stack = [node]
    while stack:
        node = stack.pop()
        while node is not None:
            count += 1
            if node.nodeType == 1:
                for attribute in node.attributes.values():
                    attribute.value
            node.nodeName
            if node.firstChild is not None:
                stack.append(node.firstChild)
            node = node.nextSibling
    return count


def calls(method):
    def run():
        for _ in range(CALLS):
            method()

    return run


parser = dom.Parser()
trees = {
    "host": parser.parseString(TEXT),
    "direct": direct.parseString(TEXT),
    "lxml": etree.fromstring(DATA),
    "minidom": minidom.parseString(DATA),
}
elements = {name: trees[name].getDocumentElement() for name in ("host", "direct")}

PARSE_AND_WALK = {
    "host": lambda: walk(parser.parseString(TEXT)),
    "direct": lambda: walk(direct.parseString(TEXT).getFirstChild()),
    "lxml": lambda: walk_lxml(etree.fromstring(DATA)),
    "minidom": lambda: walk_minidom(minidom.parseString(DATA)),
}

# Two phases, each its measurements interleaved. The trees that the first
# walks are let go before the second, so that the collector does not go
# through minidom's while the parses run.
# measurement -> implementation -> (work, unit scale, collector on)
PHASES = (
    {
        "getNodeType, one call": {name: (calls(e.getNodeType), 1e9 / CALLS, True) for name, e in elements.items()},
        "getFirstChild, one call": {name: (calls(e.getFirstChild), 1e9 / CALLS, True) for name, e in elements.items()},
        "walk 1MB": {
            "host": (lambda: walk(trees["host"]), 1e3, True),
            "direct": (lambda: walk(trees["direct"].getFirstChild()), 1e3, True),
            "lxml": (lambda: walk_lxml(trees["lxml"]), 1e3, True),
            "minidom": (lambda: walk_minidom(trees["minidom"]), 1e3, True),
        },
    },
    {
        "parse + walk 1MB": {name: (work, 1e3, True) for name, work in PARSE_AND_WALK.items()},
        "  the same, collector off": {name: (work, 1e3, False) for name, work in PARSE_AND_WALK.items()},
    },
)
UNITS = {"getNodeType, one call": "ns", "getFirstChild, one call": "ns"}
# measurement -> (numerator, denominator, goal, whether the ratio meets it)
GOALS = {
    "getNodeType, one call": ("host", "direct", "<= 1.5", lambda r: r <= 1.5),
    "getFirstChild, one call": ("host", "direct", "<= 1.5", lambda r: r <= 1.5),
    "walk 1MB": ("host", "lxml", "<= 3", lambda r: r <= 3),
    "parse + walk 1MB": ("minidom", "host", ">= 2", lambda r: r >= 2),
    "  the same, collector off": ("minidom", "host", ">= 2", lambda r: r >= 2),
}
IMPLEMENTATIONS = ("host", "direct", "lxml", "minidom")


def timed(work, collector):
    gc.collect()
    if not collector:
        gc.disable()
    try:
        start = time.perf_counter()
        work()
        return time.perf_counter() - start
    finally:
        gc.enable()


def measure(measurements):
    """Medians by (measurement, implementation)."""
    runs = [(m, i) for m, by in measurements.items() for i in by]
    times = {run: [] for run in runs}
    for measurement, implementation in runs:  # once each first: lazy set-up and caches
        measurements[measurement][implementation][0]()
    for _ in range(REPETITIONS):
        random.shuffle(runs)
        for measurement, implementation in runs:
            work, scale, collector = measurements[measurement][implementation]
            times[(measurement, implementation)].append(timed(work, collector) * scale)
    return {run: statistics.median(values) for run, values in times.items()}


def main():
    nodes = {name: work() for name, (work, _, _) in PHASES[0]["walk 1MB"].items()}
    medians = measure(PHASES[0])
    trees.clear()
    elements.clear()
    medians.update(measure(PHASES[1]))

    print(f"{'measurement':<26}" + "".join(f"{name:>11}" for name in IMPLEMENTATIONS) + f"  {'ratio':<13}{'value':>6}  goal")
    for measurement, (top, bottom, goal, met) in GOALS.items():
        unit = UNITS.get(measurement, "ms")
        cells = "".join(
            f"{medians[(measurement, name)]:>8.{1 if unit == 'ms' else 0}f} {unit}" if (measurement, name) in medians
            else f"{'':>11}"
            for name in IMPLEMENTATIONS
        )
        ratio = medians[(measurement, top)] / medians[(measurement, bottom)]
        print(f"{measurement:<26}{cells}  {top + '/' + bottom:<13}{ratio:>6.2f}  {goal} {'met' if met(ratio) else 'NOT MET'}")
    print(
        f"\nMedians of {REPETITIONS} interleaved repetitions; a call is the mean of {CALLS:,} in a loop; the "
        f"collector runs as in any program unless the row says otherwise. Nodes a walk visits: host {nodes['host']:,}, "
        f"direct {nodes['direct']:,} (from the document's first child), minidom {nodes['minidom']:,}, "
        f"lxml {nodes['lxml']:,} (no text nodes). Input: the C++ suite's catalogue, {len(DATA):,} bytes."
    )


main()
