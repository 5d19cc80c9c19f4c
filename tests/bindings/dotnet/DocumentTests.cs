// The documents of the .NET binding (BindingTests.exe documents, see
// BindingTests.cs): the example slab, byte for byte as the C example host
// writes it, the golden scenarios of tests/functional through every export,
// and what the wrapper holds to before anything reaches the library.

using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using ItUnitechnik;

static partial class BindingTests
{
    // ---- documents

    static string work;
    static string expected;

    static void Documents(string expectedDirectory, string cExample, string workDirectory)
    {
        expected = expectedDirectory;
        work = workDirectory;
        if (Directory.Exists(work)) {
            Directory.Delete(work, true);
        }
        Directory.CreateDirectory(work);

        // First, while the library holds nothing: the library's own empty text.
        using (var document = new Document()) {
            SameText(document.ReinforcementSummary(), "reinforced/summary-none.txt");
        }
        ExampleSlab(cExample);
        Reinforced();
        Slab();
        DocumentRules();
    }

    static byte[] Golden(string name)
    {
        return File.ReadAllBytes(Path.Combine(expected, name));
    }

    static void SameBytes(byte[] actual, byte[] wanted, string what)
    {
        bool same = actual.SequenceEqual(wanted);
        if (!same) {
            int at = 0;
            while (at < actual.Length && at < wanted.Length && actual[at] == wanted[at]) {
                ++at;
            }
            what += string.Format(" (differs at byte {0}; {1} bytes, {2} expected)", at, actual.Length, wanted.Length);
        }
        Check(same, what);
    }

    static void SameFile(string written, string golden)
    {
        SameBytes(File.ReadAllBytes(written), Golden(golden), Path.GetFileName(written) + " equals " + golden);
    }

    // The summary string as the C scenario writes it: UTF-8 with its line feeds.
    static void SameText(string summary, string golden)
    {
        SameBytes(new UTF8Encoding(false).GetBytes(summary), Golden(golden), "the summary equals " + golden);
    }

    static Placement Placement(double x1, double y1, double z1, double x2, double y2, double z2,
        double x3, double y3, double z3)
    {
        return new Placement(new Point3(x1, y1, z1), new Point3(x2, y2, z2), new Point3(x3, y3, z3));
    }

    static List<Point> Points(params int[] xy)
    {
        var points = new List<Point>();
        for (int i = 0; i < xy.Length; i += 2) {
            points.Add(new Point(xy[i], xy[i + 1]));
        }
        return points;
    }

    // The calls of examples/slab_host.c, through the binding.
    static void ExampleSlab(string cExample)
    {
        string path = Path.Combine(work, "example-slab.uni");
        using (var document = new Document()) {
            document.StartOrder(1, 101, Placement(0, 0, 0, 6000, 0, 0, 0, 2400, 0), 600, "Floor slab FS-101", 13.32);
            document.SetProjectData(new ProjectData {
                OrderNumber = "ORD-2026-0142", OrderText5 = "A1   ", OrderText4 = "LV01", OrderText8 = "K-77",
                ProjectText1 = "Riverside Tower", ProjectText2 = "Block B", ProjectText3 = "Level 3",
                ProjectText4 = "Slabs",
                FirstAddress1 = "Precast Works Ltd", FirstAddress2 = "Quarry Road 12", FirstAddress3 = "D-12345",
                FirstAddress4 = "Steinfeld",
                SecondAddress1 = "Main Contractor", SecondAddress2 = "Harbour Street 1", SecondAddress3 = "D-20457",
                SecondAddress4 = "Hamburg",
                Date = "21.11.2026", OrderText2 = "01", OrderText40 = "Floor slab, fair-faced underside",
            });
            document.SetSlabInfo("C30/37", "XC1", "exposed", "batch 7");
            document.AddLayer(0, 0.06, 2.4, 799.2, "C30/37");
            document.SetDoubleWallGap(0);

            document.AddContour(Points(0, 0, 6000, 0, 6000, 2400, 0, 2400, 0, 0));
            document.AddCutout("Stair opening", 1.08, Points(1000, 600, 2200, 600, 2200, 1500, 1000, 1500, 1000, 600));
            Check(document.AddMountingPart("Socket box", 60, 0,
                new[] { new Piece(new Point(4700, 1000), new Point(4800, 1100)) }), "the socket box is added");
            var girders = new BracedGirder {
                TypeNumber = 4, FirstSize = 3400, Position = new Point(2400, 300), PositionZ = 600, Rotation = 0,
                AuxNumber = 80, ShortNumber = 10, ValueThousandths = 4930, LastNumber = 20 };
            Check(document.AddBracedGirders("KT 800", new[] { girders }), "the girders are added");

            Check(document.AddSteelmat("Q188A", 5800, 2200, true, false, 1, 100, 100, 35) == 1, "the mat is number 1");
            for (int k = 0; k < 15; ++k) {
                Check(document.AddMatBar(new MatBar {
                    RodKind = 1, Designation = "500", FirstSize = 1, SecondSize = 6, ThirdSize = 5800,
                    Position = new Point(0, 25 + 150 * k), AuxSixth = 35, Mounted = true }) == k + 1,
                    "a wire along the mat");
            }
            for (int k = 0; k < 39; ++k) {
                Check(document.AddMatBar(new MatBar {
                    RodKind = 1, Designation = "500", FirstSize = 1, SecondSize = 6, ThirdSize = 2200,
                    Position = new Point(25 + 150 * k, 0), AuxSixth = 41, Rotation = 90, Mounted = true }) == 16 + k,
                    "a wire across the mat");
            }

            var bar = new Bar {
                Designation = "500", Position = new Point(2600, 400), PositionZ = 400, AuxSixth = 50, FirstSize = 5,
                SecondSize = 10, ThirdSize = 3000, RodKind = 1 };
            document.AddStraightBar(bar);
            bar.ExtraDesignation = "A-102";
            bar.Position = new Point(600, 450);
            bar.PositionZ = 1200;
            bar.FirstSize = 2;
            bar.SecondSize = 12;
            bar.ThirdSize = 2900;
            bar.BendingCode = 2;
            document.AddFreeFormBar(bar, new[] {
                new FreeFormSegment(300, 45), new FreeFormSegment(400, -45), new FreeFormSegment(1500, -45),
                new FreeFormSegment(400, 45), new FreeFormSegment(300, 0) });
            Check(document.AddExternalIron(2, 4, 1.6, "Lifting anchor") == 1, "the iron is number 1");

            Check(document.Write(path), "the example slab is written");
            Check(document.ReinforcementSummary().Contains("STEELMAT"), "the summary holds the mat");
        }
        SameBytes(File.ReadAllBytes(path), File.ReadAllBytes(cExample),
            "the example slab equals the C example host's " + cExample);
    }

    static void ReinforcedStart(Document document, ushort version)
    {
        document.StartOrder(4, 101, Placement(2.5, -2.5, 2.4, 6000, 0, 0, 0, 2400, 0), version, "Slab", 1.25);
    }

    // The calls of tests/functional/scenarios/reinforced.c.
    static void Reinforced()
    {
        using (var document = new Document()) {
            ReinforcedStart(document, 600);
            SameText(document.ReinforcementSummary(), "reinforced/summary-fresh-600.txt");
        }
        foreach (ushort version in new ushort[] { 502, 600 }) {
            using (var document = new Document()) {
                ReinforcedStart(document, version);
                var early = new MatBar {
                    RodKind = 1, Designation = "B500B", FirstSize = 2300, SecondSize = 10, Position = new Point(150, 200),
                    AuxSixth = 5, PositionZ = 40, Rotation = 90, ExtraDesignation = "U1", Mounted = true, AuxFirst = 2,
                    AuxFourth = 3, AuxFifth = 4, FlagsCode = 110 };
                Check(document.AddMatBar(early) == -1, "a bar before any mat goes nowhere");
                Check(document.AddSteelmat("Q188A", 2350, 5900, true, false, 65537, 100, 50, 0) == 1, "first mat");
                Check(document.AddSteelmat("Q257 upper layer mat XL", 2350, 5900, false, true, 2, 120, 70, 160) == 2,
                    "second mat");
                early.FlagsCode = 0;
                Check(document.AddMatBar(early) == 1, "the first bar is number 1 of the second mat");
                Check(document.AddMatBar(new MatBar {
                    RodKind = 2, Designation = "B500B", FirstSize = 1800, SecondSize = 8, Position = new Point(300, 400),
                    PositionZ = 40, Rotation = -90, ExtraDesignation = "", Mounted = false, FlagsCode = 20 }) == 2,
                    "the second bar is number 2");

                // A straight bar leaves the free-form cells unread.
                document.AddStraightBar(new Bar {
                    Designation = "BSt 500 S", ExtraDesignation = "IGNORED", AuxFourth = 999, AuxFifth = 999,
                    AuxSixth = 6, Position = new Point(500, 600), PositionZ = 30, FirstSize = 5800, SecondSize = 12,
                    AuxFirst = 999, RodKind = 1, BendingCode = 2 });
                document.AddFreeFormBar(new Bar {
                    ExtraDesignation = "HOOK", Designation = "B500A", AuxFourth = 40, AuxFifth = 50, AuxSixth = 60,
                    Position = new Point(1000, 1200), PositionZ = 35, FirstSize = 1650, SecondSize = 10, Rotation = 45,
                    AuxFirst = 1, RodKind = 2, Mounted = true, BendingCode = 2 }, new[] {
                    new FreeFormSegment(200, 90), new FreeFormSegment(1000, -90), new FreeFormSegment(150, 45),
                    new FreeFormSegment(300, 0), new FreeFormSegment(400, -45), new FreeFormSegment(500, 135),
                    new FreeFormSegment(250, -180) });

                Check(document.AddBracedGirders("KT 812", new[] {
                    new BracedGirder { TypeNumber = 800, FirstSize = 4500, Position = new Point(100, 200), PositionZ = 30,
                        Rotation = 90, AuxNumber = 5, ShortNumber = 7, ValueThousandths = 1500, LastNumber = 12 },
                    new BracedGirder { TypeNumber = 1000, FirstSize = 3800, Position = new Point(-150, 2000), PositionZ = 0,
                        Rotation = -45, AuxNumber = 12, ShortNumber = 3, ValueThousandths = 123456, LastNumber = 99999 },
                }), "girders");
                Check(document.AddExternalIron(2, 10, 1.5, "Anchor") == 1, "first iron");
                Check(document.AddExternalIron(3, 4, 0.25, "Lifting loop, long description text") == 2, "second iron");

                string path = Path.Combine(work, "reinforced-" + version + ".txt");
                Check(document.Write(path), "endDocument");
                SameFile(path, "reinforced/reinforced-" + version + ".txt");
                // The document stays: one more iron, with a text above U+00FF.
                Check(document.AddExternalIron(1, 1, 0.0, "\u03A9 7") == 3, "third iron");
                SameText(document.ReinforcementSummary(), "reinforced/summary-" + version + ".txt");
            }
        }
    }

    // The calls of tests/functional/scenarios/slab.c.
    static void BuildSlab(Document document, ushort version)
    {
        document.StartOrder(5, 17, Placement(0, 0, 0, 6000, 0, 0, 0, 2400, 0), version, "Slab A", 2.4);
        document.SetProjectData(new ProjectData {
            OrderNumber = "A-2026-1047", OrderText5 = "PLT01", OrderText4 = "WK12", OrderText8 = "LINE3",
            ProjectText1 = "Riverside Housing Estate", ProjectText2 = "Block C", ProjectText3 = "Level 2",
            ProjectText4 = "Slab S-14",
            FirstAddress1 = "Hartmann Bau GmbH", FirstAddress2 = "Industriestrasse 12", FirstAddress3 = "70565",
            FirstAddress4 = "Stuttgart",
            SecondAddress1 = "Precast Works Nord", SecondAddress2 = "Hafenweg 3", SecondAddress3 = "20457",
            SecondAddress4 = "Hamburg",
            Date = "21.11.2026", OrderText2 = "R1", OrderText40 = "Slab with two openings and two sockets",
        });
        document.SetSlabInfo("Info one", "Info two", "C30/37", "XC1");
        document.AddLayer(1, 0.06, 1.0, 2400.0, "C30/37");
        document.AddLayer(2, 0.08, 0.5, 1800.0, "INSUL");
        document.AddLayer(1, 0.06, 1.0, 2400.0, "C30/37");
        document.SetDoubleWallGap(25);
        document.AddContour(Points(0, 0, 6000, 0, 6000, 2400, 0, 2400, 0, 0));
        document.AddCutout("Stair opening", 1.25, Points(1000, 500, 2200, 500, 2200, 1700, 1000, 1700, 1000, 500));
        document.AddCutout("Duct", 0.5, Points(4000, 800, 4600, 800, 4600, 1400));
        Check(document.AddMountingPart("Socket M16", 12, 34,
            new[] { new Piece(new Point(3000, 1000), new Point(3250, 1400)) }), "addSet socket");
        Check(document.AddMountingPart("Lifting anchor", 7, 5, new[] {
            new Piece(new Point(500, 300), new Point(800, 300)),
            new Piece(new Point(800, 300), new Point(800, 900)) }), "addSet anchor");
    }

    static void Slab()
    {
        foreach (ushort version in new ushort[] { 502, 600 }) {
            using (var document = new Document()) {
                BuildSlab(document, version);
                string path = Path.Combine(work, "slab-" + version + ".txt");
                document.Write(path);
                SameFile(path, "slab/slab-" + version + ".txt");
            }
        }
        // setThicknesses after the last layer: the element's second line
        // carries the thickness (UInt(4), 13th field) and the second
        // thickness (UInt(4), last field) as given; the rest stays.
        using (var document = new Document()) {
            BuildSlab(document, 600);
            document.SetThicknesses(220, 180);
            string path = Path.Combine(work, "slab-600-thicknesses.txt");
            document.Write(path);
            string golden = Encoding.ASCII.GetString(Golden("slab/slab-600.txt"));
            const string before = "\r\n02.400 000 00          0.000 05700.0 0200 025 000 000 000 000 0200\r\n";
            const string after = "\r\n02.400 000 00          0.000 05700.0 0220 025 000 000 000 000 0180\r\n";
            Check(golden.IndexOf(before) >= 0 && golden.IndexOf(before) == golden.LastIndexOf(before),
                "the golden slab has the element's second line once");
            SameBytes(File.ReadAllBytes(path), Encoding.ASCII.GetBytes(golden.Replace(before, after)),
                "setThicknesses(220, 180) changes the two thicknesses alone");
        }
    }

    // What the wrapper holds to before anything reaches the library.
    static void DocumentRules()
    {
        var first = new Document();
        Throws<InvalidOperationException>(() => new Document(), "a second Document while one is open");
        first.Dispose();
        Throws<ObjectDisposedException>(() => first.SetDoubleWallGap(1), "a disposed Document");
        using (var document = new Document()) {
            // An outline of no points is one of no pieces, as the library adds it.
            document.AddContour(new Point[0]);
            document.AddCutout("empty", 1, new Point[0]);
            Throws<ArgumentNullException>(() => document.AddLayer(1, 0.1, 1, 1, null), "a null text");
            Throws<ArgumentException>(() => document.SetSlabInfo("a\0b", "", "", ""), "a text with a NUL");
            Throws<ArgumentException>(() => document.AddCutout("big", 1, new Point[70000]), "an opening of 70000 points");
            Throws<ArgumentException>(() => document.AddFreeFormBar(new Bar(), new FreeFormSegment[70000]),
                "a bar of 70000 segments");
            foreach (var date in new[] { "", "1.2.2", "1.2.2024", "01.02.", "  .  .    ", "01.xx.2024" }) {
                Throws<ArgumentException>(() => document.SetProjectData(new ProjectData { Date = date }),
                    "the date \"" + date + "\"");
            }
            Throws<ArgumentException>(() => document.SetProjectData(new ProjectData()), "no date");
        }
    }
}
