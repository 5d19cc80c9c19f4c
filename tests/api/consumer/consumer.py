"""A Python host: a slab with its outline and a mat, written to the file named
by its one argument through the installed package unitechnik."""
import sys

import unitechnik

with unitechnik.Document(sys.argv[1]) as document:
    document.start_order(order_value=1, element_number=101,
                         placement=[(0, 0, 0), (6000, 0, 0), (0, 2400, 0)],
                         version=600, element_text="Floor slab", element_measure=1.25)
    document.add_contour(points=[(0, 0), (6000, 0), (6000, 2400), (0, 2400), (0, 0)])
    document.add_steelmat(name="Q188A", first_dimension=5800, second_dimension=2200,
                          first_flag=True, second_flag=False, mat_kind=1, position=(100, 100, 35))
    summary = document.summary()
print("wrote", sys.argv[1], "with unitechnik", unitechnik.__version__, "; the summary has",
      len(summary), "characters")
