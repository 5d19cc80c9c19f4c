"""A Python host: one slab with its outline, written to the file named by its
one argument, through the installed package unitechnik."""
import sys

import unitechnik

with unitechnik.Document(sys.argv[1]) as document:
    document.start_order(order_value=1, element_number=101,
                         placement=[(0, 0, 0), (6000, 0, 0), (0, 2400, 0)],
                         version=600, element_text="Floor slab", element_measure=1.25)
    document.add_contour(points=[(0, 0), (6000, 0), (6000, 2400), (0, 2400), (0, 0)])
print("wrote", sys.argv[1], "with unitechnik", unitechnik.__version__)
