// The reading side of the .NET binding (UnitechnikFile.cs) against the
// reading library and the unitechnik tool.
//
//   BindingTests.exe reading EXPECTED-DIRECTORY C-EXAMPLE-FILE TOOL GENERATOR WORK-DIRECTORY COUNT
//       the example slab's values as its host wrote them; then every golden
//       file of tests/functional, the golden slab with outlines of every
//       kind and with bare line feeds, and COUNT files built by the tool from
//       the generator's call scripts: what UnitechnikFile gives equals the
//       library's own JSON value for value, its records equal
//       `unitechnik dump --json`, its bill `unitechnik bom --json`
//       (the comparisons in ReadingComparison.cs)
//   BindingTests.exe reading-errors HEADER EXPECTED-DIRECTORY WORK-DIRECTORY
//       the calls of HEADER declared; broken, cut-off and empty files and a
//       missing path throw UnitechnikReadException where they stop
//       (ReadingErrorTests.cs)

using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using ItUnitechnik;
using ItUnitechnik.Interop;

static partial class BindingTests
{
    // ---- reading: the typed values against the library's JSON

    static void Reading(string expectedDirectory, string cExample, string tool, string generator,
        string workDirectory, int count)
    {
        if (Directory.Exists(workDirectory)) {
            Directory.Delete(workDirectory, true);
        }
        Directory.CreateDirectory(workDirectory);

        Guarded("the meanings", Meanings);
        Guarded("the example's values", () => ExampleValues(cExample));
        Check(SameAsLibrary(tool, cExample), "the example slab reads");
        Guarded("the variants", () => Variants(Path.Combine(expectedDirectory, "slab", "slab-600.txt"), cExample,
            tool, workDirectory));

        var golden = Directory.GetFiles(expectedDirectory, "*.txt", SearchOption.AllDirectories)
            .OrderBy(p => p, StringComparer.Ordinal).ToList();
        Check(golden.Count > 0, golden.Count + " golden files");
        int failing = 0;
        foreach (var path in golden) {
            if (!SameAsLibrary(tool, path)) {
                ++failing;
            }
        }
        // The summaries beside the golden files are no Unitechnik files; an
        // empty one is the file of no orders.
        Check(failing == golden.Count(p => Path.GetFileName(p).StartsWith("summary-", StringComparison.Ordinal)
                && new FileInfo(p).Length > 0),
            failing + " golden files do not read: the summaries with text");

        string scripts = Path.Combine(workDirectory, "scripts");
        string built = Path.Combine(workDirectory, "built");
        Directory.CreateDirectory(built);
        var generated = Run(generator, scripts, "20260521", count.ToString());
        Check(generated.Exit == 0, "generate_scripts wrote " + count + " scripts: " + generated.Error);
        var scriptPaths = Directory.GetFiles(scripts, "*.json").OrderBy(p => p, StringComparer.Ordinal).ToList();
        Check(scriptPaths.Count == count, scriptPaths.Count + " scripts");
        int read = 0;
        foreach (var script in scriptPaths) {
            string file = Path.Combine(built, Path.GetFileNameWithoutExtension(script) + ".uni");
            var build = Run(tool, "build", script, "-o", file);
            if (build.Exit != 0 || !File.Exists(file)) {
                Check(false, "unitechnik build " + script + ": " + build.Error);
                continue;
            }
            if (SameAsLibrary(tool, file)) {
                ++read;
            }
        }
        Check(read == scriptPaths.Count, read + " of " + scriptPaths.Count + " generated files read to their end");

        // Nothing of the comparisons was empty.
        var kinds = new SortedSet<string>(seen.Where(p => p.Value == 0).Select(p => p.Key));
        Check(kinds.Count == 0, "every kind of value was compared at least once" +
            (kinds.Count == 0 ? "" : "; never: " + string.Join(", ", kinds)));
    }

    // A part of the test that throws fails, and the rest runs.
    static void Guarded(string what, Action action)
    {
        try {
            action();
        } catch (Exception e) {
            Check(false, what + ": threw " + e.GetType().Name + ": " + e.Message);
        }
    }

    // What the comparisons met: each kind of value the binding gives.
    static readonly Dictionary<string, int> seen = new Dictionary<string, int> {
        { "bar set", 0 }, { "bent bar set", 0 }, { "girder group", 0 }, { "mat", 0 }, { "bar set of a mat", 0 },
        { "girder group of a mat", 0 },
        { "part", 0 }, { "iron", 0 }, { "layer", 0 }, { "contour", 0 }, { "cutout", 0 },
        { "line", 0 }, { "arc", 0 }, { "circle", 0 }, { "polygon", 0 }, { "departure", 0 }, { "bare line end", 0 },
        { "element record", 0 }, { "bill of an element", 0 } };

    static void Count(UnitechnikFile file)
    {
        seen["departure"] += file.Departures.Count;
        seen["bare line end"] += (int)Math.Min(file.BareLineEnds, 1000);
        seen["bill of an element"] += ((IReadOnlyList<object>)file.Bom()["elements"]).Count;
        foreach (var element in file.Orders.SelectMany(o => o.Elements)) {
            seen["element record"] += element.Record.Count > 0 ? 1 : 0;
            seen["bar set"] += element.Bars.Count;
            seen["bent bar set"] += element.Bars.Count(b => b.Segments.Count > 0);
            seen["girder group"] += element.Girders.Count;
            seen["girder group of a mat"] += element.Mats.Sum(m => m.Girders.Count);
            seen["mat"] += element.Mats.Count;
            seen["bar set of a mat"] += element.Mats.Sum(m => m.Bars.Count);
            seen["part"] += element.Parts.Count;
            seen["iron"] += element.Irons.Count;
            seen["layer"] += element.Layers.Count;
            seen["contour"] += element.Contours.Count;
            seen["cutout"] += element.Cutouts.Count;
            var pieces = element.Contours.SelectMany(c => c.Pieces).Concat(element.Cutouts.SelectMany(c => c.Pieces))
                .Concat(element.Parts.SelectMany(p => p.Pieces));
            foreach (var piece in pieces) {
                if (seen.ContainsKey(piece.Kind)) {
                    ++seen[piece.Kind];
                }
            }
        }
    }

    static void Same<T>(T actual, T wanted, string what)
    {
        bool same = EqualityComparer<T>.Default.Equals(actual, wanted);
        Check(same, what + (same ? "" : string.Format(": {0}, {1} expected", actual, wanted)));
    }

    // The example slab, read back: the values its host (examples/slab_host.c)
    // gave the library, seen as the plant reads them.
    static void ExampleValues(string cExample)
    {
        var file = UnitechnikFile.Read(cExample);
        Same(file.Orders.Count, 1, "example: one order");
        var order = file.Orders[0];
        Same(order.Number, "ORD-2026-0142", "example: the order's text");
        Same(order.Version, 600, "example: version 600");
        Same(order.Elements.Count, 1, "example: one element");
        var element = order.Elements[0];
        Same(element.Number, "101", "example: element 101");
        Same(element.Text, "Floor slab FS-101", "example: the element's text");
        Same(element.Extents.X, 6000, "example: 6000 mm along x");
        Same(element.Extents.Y, 2400, "example: 2400 mm along y");
        Same(element.Thickness, 60, "example: 60 mm thick");
        Same(element.Area, 13.32, "example: 13.32 m²");
        Same(element.Record["elementNumber"], (object)101L, "example: the record's elementNumber");
        Same(element.Contours.Count, 1, "example: one contour");
        Same(element.Contours[0].Pieces.Count, 4, "example: the contour's four lines");
        var opening = element.Cutouts.Single();
        Same(opening.Name, "Stair opening", "example: the opening's name");
        Same(opening.Area, 1.08, "example: the opening's area");
        var part = element.Parts.Single();
        Same(part.Name + " " + part.Height + " " + part.InstallationHeight, "Socket box 60 0",
            "example: the socket box, 60 high, at 0");
        var edge = part.Pieces.Single();
        Same(edge.Kind + " " + edge.From.Value.X + " " + edge.From.Value.Y + " " + edge.To.Value.X + " "
            + edge.To.Value.Y + " " + (edge.Centre == null && edge.Radius == null && edge.Points == null),
            "line 4700 1000 4800 1100 True", "example: the socket box's edge");

        var girders = element.Girders.Single();
        Same(string.Join(" ", girders.Count, girders.Type, girders.Length, girders.X, girders.Y, girders.Spacing,
            girders.Rotation, girders.Height, girders.ChordDiameter, girders.InstallationHeight),
            "4 KT 800 3400 2400 300 600 0 80 10 20", "example: the girder group");
        Same(girders.Weight, 4.93, "example: a girder weighs 4.93 kg");

        Same(element.Bars.Count, 2, "example: two bar sets");
        var straight = element.Bars[0];
        Same(string.Join(" ", straight.Count, straight.Diameter, straight.Length, straight.Pitch, straight.X,
            straight.Y, straight.Z, straight.Rotation, straight.Grade, "[" + straight.Article + "]",
            straight.Segments.Count), "5 10 3000 400 2600 400 50 0 500 [] 0", "example: the straight bars");
        var bent = element.Bars[1];
        Same(string.Join(" ", bent.Count, bent.Diameter, bent.Length, bent.Pitch, bent.X, bent.Y, bent.Article),
            "2 12 2900 1200 600 450 A-102", "example: the bent bars");
        Same(string.Join(" ", bent.Segments.Select(g => g.Length + "/" + g.Turn)),
            "300/45 400/-45 1500/-45 400/45 300/0", "example: the bent bars' legs");

        var mat = element.Mats.Single();
        Same(string.Join(" ", mat.Number, mat.Type, mat.Length, mat.Width, mat.X, mat.Y, mat.Z, mat.Bars.Count,
            mat.Girders.Count), "1 Q188A 5800 2200 100 100 35 54 0", "example: the mat");
        // The mat's wires stand in the element's frame: its origin (100, 100) added.
        var along = mat.Bars[0];
        Same(string.Join(" ", along.Count, along.Diameter, along.Length, along.X, along.Y, along.Z, along.Rotation),
            "1 6 5800 100 125 35 0", "example: the mat's first wire along it, moved by the mat's origin");
        var across = mat.Bars[15];
        Same(string.Join(" ", across.Count, across.Length, across.X, across.Y, across.Rotation),
            "1 2200 125 100 90", "example: the mat's first wire across it, moved by the mat's origin");

        var iron = element.Irons.Single();
        Same(string.Join(" ", iron.Number, iron.Name, iron.Count, iron.Code), "1 Lifting anchor 4 2",
            "example: the lifting anchors");
        Same(iron.Weight, 1.6, "example: the anchors weigh 1.6 kg");
        var layer = element.Layers.Single();
        Same(string.Join(" ", layer.Number, layer.Kind, layer.Thickness, layer.Name), "1 0 60 C30/37",
            "example: the layer");
        Same(layer.UnitWeight, 2.4, "example: the layer's unit weight");
        Same(layer.Volume, 799.2, "example: the layer's volume");
        Same(layer.Mass, 2.4 * 799.2, "example: the layer's mass");
        Check(file.Departures.Contains("texts-by-place") && file.BareLineEnds == 0,
            "example: the departures name texts by place; no bare line feeds");
        var bills = (IReadOnlyList<object>)file.Bom()["elements"];
        Same(bills.Count, 1, "example: the bill has the element");
        Same(bills.Count > 0 ? (string)((JsonObject)bills[0])["element"] : null, "101",
            "example: the bill's element is 101");
    }

    // The golden slab written by another hand: its contour of an arc, a
    // circle, a polygon and a line, and all of it with bare line feeds; the
    // example slab with a girder group in its mat.
    static void Variants(string slabPath, string cExample, string tool, string workDirectory)
    {
        string slab = File.ReadAllText(slabPath, Encoding.ASCII);
        const string lines = "S +00000 +00000 +06000 +00000 0000\r\nS +06000 +00000 +06000 +02400 0000\r\n"
            + "S +06000 +02400 +00000 +02400 0000\r\n";
        const string kinds = "B +03000 +01200 01000 000 180 000\r\nK +03000 +01200 00500 0000\r\n"
            + "P 3 +00000 +00000 +06000 +00000 0000 +06000 +02400 0000\r\n";
        Check(slab.Contains(lines), "the golden slab's contour has its three first lines");
        string outlines = Path.Combine(workDirectory, "outlines.uni");
        File.WriteAllText(outlines, slab.Replace(lines, kinds), Encoding.ASCII);
        string bare = Path.Combine(workDirectory, "bare-line-feeds.uni");
        File.WriteAllText(bare, slab.Replace("\r\n", "\n"), Encoding.ASCII);

        Check(SameAsLibrary(tool, outlines), "the slab with outlines of every kind reads");
        var pieces = UnitechnikFile.Read(outlines).Orders[0].Elements[0].Contours[0].Pieces;
        Same(string.Join(" | ", pieces.Select(Shown)),
            "arc (3000 1200) 1000 0 180 | circle (3000 1200) 500 | polygon (0 0) (6000 0) (6000 2400)"
            + " | line (0 2400) (0 0)", "the contour's pieces");
        Check(SameAsLibrary(tool, bare), "the slab with bare line feeds reads");
        Same(UnitechnikFile.Read(bare).BareLineEnds, 78L, "the slab's 78 lines end in bare line feeds");

        var latin1 = Encoding.GetEncoding("iso-8859-1");
        string example = latin1.GetString(File.ReadAllBytes(cExample));
        const string noGirders = "BRGIRDER\r\n600\r\n000\r\nEND\r\nEND STEELMAT\r\n";
        const string oneGroup = "BRGIRDER\r\n600\r\n001\r\n"
            + "001 000 00003 KT 812     02000 +00200 +00300 +00500 +090 0\r\n"
            + "000 000 120 05.250 12 000 00040 000\r\nEND\r\nEND STEELMAT\r\n";
        Check(example.Contains(noGirders), "the example's mat has no girders");
        string matGirders = Path.Combine(workDirectory, "mat-girders.uni");
        File.WriteAllBytes(matGirders, latin1.GetBytes(example.Replace(noGirders, oneGroup)));
        Check(SameAsLibrary(tool, matGirders), "the example with girders in its mat reads");
        var group = UnitechnikFile.Read(matGirders).Orders[0].Elements[0].Mats[0].Girders.Single();
        // At (200, 300) from the mat's origin (100, 100).
        Same(string.Join(" ", group.Count, group.Type, group.Length, group.X, group.Y, group.Spacing, group.Rotation,
            group.Height, group.ChordDiameter, group.Weight.ToString(System.Globalization.CultureInfo.InvariantCulture),
            group.InstallationHeight), "3 KT 812 2000 300 400 500 90 120 12 5.25 40",
            "the mat's girder group, in the element's frame");
    }

    static string Shown(OutlinePiece piece)
    {
        var text = new StringBuilder(piece.Kind);
        Func<PlanPoint?, string> point = p => p == null ? "" : string.Format(" ({0} {1})", p.Value.X, p.Value.Y);
        text.Append(point(piece.From)).Append(point(piece.To)).Append(point(piece.Centre));
        foreach (var number in new[] { piece.Radius, piece.Start, piece.End }) {
            if (number != null) {
                text.Append(" ").Append(number.Value);
            }
        }
        if (piece.Points != null) {
            foreach (var p in piece.Points) {
                text.Append(point(p));
            }
        }
        return text.ToString();
    }

    // The table of meanings as the library gives it.
    static void Meanings()
    {
        var table = (IReadOnlyList<object>)Json.Parse(ReadingNativeMethods.Utf8(ReadingNativeMethods.itrPlantMeanings()));
        var meanings = UnitechnikFile.Meanings();
        var problems = new List<string>();
        Compare(meanings, table, "meanings", problems);
        Check(table.Count > 0 && problems.Count == 0,
            table.Count + " meanings equal itrPlantMeanings" + Problems(problems));
    }
}
