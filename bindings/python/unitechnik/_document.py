"""Document: the library's one document as a context manager."""

from ._writing import (add_bar_set, add_braced_girders, add_cfs_rodstock, add_contour, add_cutout, add_ext_iron,
                       add_free_form_rodstock, add_girder_group, add_layer, add_mat_bar_set, add_mounting_part,
                       add_set, add_steelmat, add_straight_rodstock, end_document, set_double_wall_gap,
                       set_project_data, set_slab_info_fields, set_thicknesses, start_order, summary)


class Document:
    """The library's one document as a context manager. The first
    start_order of a Document drops what earlier ones left; when the block
    ends without an exception and a path was given, the document is written
    there (OSError if the library reports the stream unhealthy). Only one
    Document may be open at a time. The other exports are its methods too."""

    _open = False

    def __init__(self, path=None):
        self.path = path
        self._started = False

    def __enter__(self):
        if Document._open:
            raise RuntimeError("the library holds one document, and another is open")
        Document._open = True
        return self

    def __exit__(self, exc_type, exc_value, traceback):
        try:
            if exc_type is None and self.path is not None and not end_document(self.path):
                raise OSError("the document could not be written to %s" % (self.path,))
        finally:
            Document._open = False
        return False

    def start_order(self, order_value, element_number, placement, version, element_text, element_measure):
        """start_order, dropping earlier orders on the Document's first."""
        start_order(order_value, element_number, placement, version, element_text, element_measure,
                    clear_document=not self._started)
        self._started = True

    def write(self, path):
        """end_document: writes the orders so far to path."""
        return end_document(path)

    set_project_data = staticmethod(set_project_data)
    set_slab_info_fields = staticmethod(set_slab_info_fields)
    set_thicknesses = staticmethod(set_thicknesses)
    set_double_wall_gap = staticmethod(set_double_wall_gap)
    add_layer = staticmethod(add_layer)
    add_contour = staticmethod(add_contour)
    add_cutout = staticmethod(add_cutout)
    add_set = staticmethod(add_set)
    add_mounting_part = staticmethod(add_mounting_part)
    add_braced_girders = staticmethod(add_braced_girders)
    add_steelmat = staticmethod(add_steelmat)
    add_cfs_rodstock = staticmethod(add_cfs_rodstock)
    add_straight_rodstock = staticmethod(add_straight_rodstock)
    add_free_form_rodstock = staticmethod(add_free_form_rodstock)
    add_ext_iron = staticmethod(add_ext_iron)
    add_bar_set = staticmethod(add_bar_set)
    add_mat_bar_set = staticmethod(add_mat_bar_set)
    add_girder_group = staticmethod(add_girder_group)
    summary = staticmethod(summary)
