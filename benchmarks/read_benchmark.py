"""Times the Python package's read() of one file: five runs, the median and
the fastest, and the figures a host sees of it (bar sets, the steel)."""
import statistics
import sys
import time

import unitechnik


def main(path):
    times = []
    for _ in range(5):
        start = time.perf_counter()
        read = unitechnik.read(path)
        times.append(time.perf_counter() - start)
    elements = [element for order in read.orders for element in order.elements]
    sets = sum(len(element.bars) + sum(len(mat.bars) for mat in element.mats) for element in elements)
    print("unitechnik.read(%s): median %.3f s, fastest %.3f s over 5 runs; %d elements, %d bar sets  [goal < 1 s]"
          % (path, statistics.median(times), min(times), len(elements), sets))


if __name__ == "__main__":
    main(sys.argv[1])
