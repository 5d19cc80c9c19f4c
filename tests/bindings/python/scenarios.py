"""The documents of the C hosts, written through the Python package: the
example slab of examples/slab_host.c and the scenarios of
tests/functional/scenarios."""
import unitechnik
from unitechnik import Bar, BracedGirder, Cutout, FreeFormSegment, ProjectData

RECTANGLE = [(0, 0), (6000, 0), (6000, 2400), (0, 2400), (0, 0)]
FLAT = [(0, 0, 0), (6000, 0, 0), (0, 2400, 0)]


def example_slab(path):
    """The calls of examples/slab_host.c."""
    with unitechnik.Document(path) as document:
        document.start_order(order_value=1, element_number=101, placement=FLAT, version=600,
                             element_text="Floor slab FS-101", element_measure=13.32)
        document.set_project_data(ProjectData(
            order_number="ORD-2026-0142", order_text5="A1   ", order_text4="LV01", order_text8="K-77",
            project_text1="Riverside Tower", project_text2="Block B", project_text3="Level 3",
            project_text4="Slabs",
            first_address1="Precast Works Ltd", first_address2="Quarry Road 12", first_address3="D-12345",
            first_address4="Steinfeld",
            second_address1="Main Contractor", second_address2="Harbour Street 1", second_address3="D-20457",
            second_address4="Hamburg",
            date="21.11.2026", order_text2="01", order_text40="Floor slab, fair-faced underside"))
        document.set_slab_info_fields("C30/37", "XC1", "exposed", "batch 7")
        document.add_layer(layer_kind=0, thickness_metres=0.06, first_factor=2.4, second_factor=799.2,
                           layer_name="C30/37")
        document.set_double_wall_gap(0)

        document.add_contour(points=RECTANGLE)
        document.add_cutout(Cutout(name="Stair opening", value=1.08,
                                   points=[(1000, 600), (2200, 600), (2200, 1500), (1000, 1500), (1000, 600)]))
        assert document.add_mounting_part("Socket box", 60, 0, pieces=[((4700, 1000), (4800, 1100))])
        assert document.add_braced_girders("KT 800", [BracedGirder(
            type_number=4, first_size=3400, position=(2400, 300), position_z=600, rotation=0, aux_number=80,
            short_number=10, value_thousandths=4930, last_number=20)])

        assert document.add_steelmat(name="Q188A", first_dimension=5800, second_dimension=2200,
                                     first_flag=True, second_flag=False, mat_kind=1, position=(100, 100, 35)) == 1
        for k in range(15):
            assert document.add_cfs_rodstock(rod_kind=1, designation="500", first_size=1, second_size=6,
                                              third_size=5800, position=(0, 25 + 150 * k), aux_sixth=35,
                                              mounted=True) == k + 1
        for k in range(39):
            assert document.add_cfs_rodstock(rod_kind=1, designation="500", first_size=1, second_size=6,
                                              third_size=2200, position=(25 + 150 * k, 0), aux_sixth=41,
                                              rotation=90, mounted=True) == 16 + k

        bar = Bar(designation="500", position=(2600, 400), position_z=400, aux_sixth=50, first_size=5,
                  second_size=10, third_size=3000, rod_kind=1)
        document.add_straight_rodstock(bar)
        bar.extra_designation = "A-102"
        bar.position = (600, 450)
        bar.position_z = 1200
        bar.first_size = 2
        bar.second_size = 12
        bar.third_size = 2900
        bar.bending_code = 2
        document.add_free_form_rodstock(bar, segments=[(300, 45), (400, -45), (1500, -45), (400, 45), (300, 0)])
        assert document.add_ext_iron(iron_code=2, iron_count=4, iron_value=1.6, iron_text="Lifting anchor") == 1
        return document.summary()


def reinforced_start(document, version):
    document.start_order(order_value=4, element_number=101,
                         placement=[(2.5, -2.5, 2.4), (6000, 0, 0), (0, 2400, 0)],
                         version=version, element_text="Slab", element_measure=1.25)


def reinforced(document):
    """build_reinforcement of tests/functional/scenarios/reinforced.c."""
    early = dict(rod_kind=1, designation="B500B", first_size=2300, second_size=10, position=(150, 200),
                 aux_sixth=5, position_z=40, rotation=90, extra_designation="U1", mounted=True,
                 aux_first=2, aux_fourth=3, aux_fifth=4)
    assert document.add_cfs_rodstock(flags_code=110, **early) == -1
    assert document.add_steelmat("Q188A", 2350, 5900, True, False, 65537, (100, 50, 0)) == 1
    assert document.add_steelmat("Q257 upper layer mat XL", 2350, 5900, False, True, 2, (120, 70, 160)) == 2
    assert document.add_cfs_rodstock(flags_code=0, **early) == 1
    assert document.add_cfs_rodstock(rod_kind=2, designation="B500B", first_size=1800, second_size=8,
                                      position=(300, 400), position_z=40, rotation=-90, extra_designation="",
                                      mounted=False, flags_code=20) == 2
    # A straight bar leaves the free-form cells unread.
    document.add_straight_rodstock(Bar(designation="BSt 500 S", extra_designation="IGNORED", aux_fourth=999,
                                       aux_fifth=999, aux_sixth=6, position=(500, 600), position_z=30,
                                       first_size=5800, second_size=12, aux_first=999, rod_kind=1,
                                       bending_code=2))
    document.add_free_form_rodstock(
        Bar(designation="B500A", extra_designation="HOOK", aux_fourth=40, aux_fifth=50, aux_sixth=60,
            position=(1000, 1200), position_z=35, first_size=1650, second_size=10, rotation=45, aux_first=1,
            rod_kind=2, mounted=True, bending_code=2),
        segments=[FreeFormSegment(200, 90), FreeFormSegment(1000, -90), FreeFormSegment(150, 45),
                  FreeFormSegment(300, 0), FreeFormSegment(400, -45), FreeFormSegment(500, 135),
                  FreeFormSegment(250, -180)])
    assert document.add_set(set_kind=5, set_name="KT 812",
                            values=[800, 4500, 100, 200, 30, 90, 5, 7, 1500, 12,
                                    1000, 3800, -150, 2000, 0, -45, 12, 3, 123456, 99999])
    assert document.add_ext_iron(2, 10, 1.5, "Anchor") == 1
    assert document.add_ext_iron(3, 4, 0.25, "Lifting loop, long description text") == 2


def slab(document, version):
    """build_slab of tests/functional/scenarios/slab.c, with the texts as a plain list."""
    document.start_order(order_value=5, element_number=17, placement=FLAT, version=version,
                         element_text="Slab A", element_measure=2.4)
    document.set_project_data([
        "A-2026-1047", "PLT01", "WK12", "LINE3",
        "Riverside Housing Estate", "Block C", "Level 2", "Slab S-14",
        "Hartmann Bau GmbH", "Industriestrasse 12", "70565", "Stuttgart",
        "Precast Works Nord", "Hafenweg 3", "20457", "Hamburg",
        "21.11.2026", "R1", "Slab with two openings and two sockets"])
    document.set_slab_info_fields(slab_info1="Info one", slab_info2="Info two", slab_info3="C30/37",
                                  slab_info4="XC1")
    document.add_layer(1, 0.06, 1.0, 2400.0, "C30/37")
    document.add_layer(2, 0.08, 0.5, 1800.0, "INSUL")
    document.add_layer(1, 0.06, 1.0, 2400.0, "C30/37")
    document.set_double_wall_gap(double_wall_gap=25)
    document.add_contour(RECTANGLE)
    document.add_cutout(Cutout("Stair opening", 1.25, [(1000, 500), (2200, 500), (2200, 1700), (1000, 1700),
                                                       (1000, 500)]))
    document.add_cutout(Cutout("Duct", 0.5, [(4000, 800), (4600, 800), (4600, 1400)]))
    assert document.add_set(3, "Socket M16", [12, 34, 3000, 1000, 3250, 1400])
    assert document.add_mounting_part(name="Lifting anchor", set_value1=7, set_value2=5,
                                      pieces=[((500, 300), (800, 300)), ((800, 300), (800, 900))])
