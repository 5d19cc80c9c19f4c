"""Prints the steel weight per bar diameter of every Unitechnik file named on
the command line, from the bill of materials that unitechnik.read gives.

    python3 read_bom.py slab.uni [more.uni ...]

A file that does not read is named on standard error with the place where
the reading stopped; the exit status is 1 then.
"""
import sys

import unitechnik


def weights_by_diameter(file):
    """kg of bars per diameter (mm), every grade and element together."""
    weights = {}
    for element in file.bom()["elements"]:
        for group in element["bars"]:
            weights[group["diameter"]] = weights.get(group["diameter"], 0.0) + group["weight"]
    return weights


def main(paths):
    status = 0
    for path in paths:
        try:
            file = unitechnik.read(path)
        except unitechnik.ReadError as error:
            print(error, file=sys.stderr)
            status = 1
            continue
        weights = weights_by_diameter(file)
        print(path)
        for diameter in sorted(weights):
            print("  d %d mm: %.3f kg" % (diameter, weights[diameter]))
        print("  total: %.3f kg" % sum(weights.values()))
    return status


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
