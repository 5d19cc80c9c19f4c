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
//   BindingTests.exe reading-errors HEADER EXPECTED-DIRECTORY WORK-DIRECTORY
//       the calls of HEADER declared; broken, cut-off and empty files and a
//       missing path throw UnitechnikReadException where they stop

using System;
using System.Collections;
using System.Collections.Generic;
using System.Diagnostics;
using System.IO;
using System.Linq;
using System.Reflection;
using System.Runtime.InteropServices;
using System.Text;
using System.Text.RegularExpressions;
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

    // The library's own result for a file, by the C calls.
    static JsonObject LibraryJson(string path)
    {
        return (JsonObject)Json.Parse(ReadingNativeMethods.TakeJson(
            ReadingNativeMethods.itrReadFile(ReadingNativeMethods.ZeroTerminated(path), ReadingNativeMethods.All)));
    }

    // Reads a file by its path and by its bytes and compares everything with
    // the library's JSON and the tool's output. True when it read to its end.
    static bool SameAsLibrary(string tool, string path)
    {
        try {
            return ComparedWithLibrary(tool, path);
        } catch (Exception e) {
            Check(false, path + ": threw " + e.GetType().Name + ": " + e.Message);
            return false;
        }
    }

    static bool ComparedWithLibrary(string tool, string path)
    {
        string name = Path.GetFileName(Path.GetDirectoryName(path)) + "/" + Path.GetFileName(path);
        JsonObject library = LibraryJson(path);
        bool ok = (bool)library["ok"];
        var dump = Run(tool, "dump", "--json", path);
        var bom = Run(tool, "bom", "--json", path);
        Check(dump.Exit == (ok ? 0 : 1) && bom.Exit == (ok ? 0 : 1),
            string.Format("{0}: dump and bom exit {1} and {2}", name, dump.Exit, bom.Exit));
        var dumped = (JsonObject)Json.Parse(dump.Output);
        var bill = Json.Parse(bom.Output);

        foreach (bool byPath in new[] { true, false }) {
            string how = name + (byPath ? " by path" : " by bytes");
            UnitechnikFile file;
            try {
                file = byPath ? UnitechnikFile.Read(path) : UnitechnikFile.Read(File.ReadAllBytes(path));
                Check(ok, how + " reads, as the library says");
            } catch (UnitechnikReadException e) {
                var error = (JsonObject)library["error"];
                Check(!ok && e.Line == (long)error["line"] && e.Column == (long)error["column"]
                    && e.Reason == (string)error["message"] && e.Path == (byPath ? path : null),
                    string.Format("{0} throws at {1}:{2} as the library stops: {3}", how, e.Line, e.Column, e.Reason));
                if (byPath) {
                    // The tool names the place in the same words.
                    Check(e.Message == dump.Error.Trim(), how + ": the message is the tool's: " + e.Message);
                }
                file = e.PartlyRead;
                Check(file != null, how + ": what was read before the stop is there");
                if (file == null) {
                    continue;
                }
            }
            Check(file.Path == (byPath ? path : null), how + ": the path");
            if (byPath) {
                Count(file);
            }

            var problems = new List<string>();
            Compare(file.Orders, ((JsonObject)library["plant"])["orders"], "orders", problems);
            Compare(file.Departures, library["departures"], "departures", problems);
            Compare(file.BareLineEnds, library["bareLineEnds"], "bareLineEnds", problems);
            int elements = file.Orders.Sum(o => o.Elements.Count);
            Check(problems.Count == 0, string.Format("{0}: {1} orders, {2} elements, equal to the library's plant{3}",
                how, file.Orders.Count, elements, Problems(problems)));

            var document = (JsonObject)dumped["document"];
            Check(Json.Same(file.Records(), document), how + ": the records equal unitechnik dump --json");
            var orderRecords = (IReadOnlyList<object>)document["orders"];
            bool sameRecords = orderRecords.Count == file.Orders.Count;
            for (int i = 0; sameRecords && i < file.Orders.Count; ++i) {
                var order = file.Orders[i];
                sameRecords = Json.Same(order.Record, orderRecords[i]);
                var elementRecords = (IReadOnlyList<object>)((JsonObject)orderRecords[i])["elementParts"];
                sameRecords = sameRecords && elementRecords.Count == order.Elements.Count;
                for (int j = 0; sameRecords && j < order.Elements.Count; ++j) {
                    sameRecords = Json.Same(order.Elements[j].Record, elementRecords[j]);
                }
            }
            Check(sameRecords, how + ": each order's and element's record equals its record in the dump");
            Check(Json.Same(file.Bom(), bill), how + ": the bill equals unitechnik bom --json");
        }
        return ok;
    }

    static string Problems(List<string> problems)
    {
        if (problems.Count == 0) {
            return "";
        }
        return string.Format(" ({0} differences: {1})", problems.Count, string.Join("; ", problems.Take(5)));
    }

    // "installation_height" -> "InstallationHeight": the .NET name of a key.
    static string DotNetName(string key)
    {
        var name = new StringBuilder();
        foreach (var word in key.Split('_')) {
            if (word.Length > 0) {
                name.Append(char.ToUpperInvariant(word[0])).Append(word.Substring(1));
            }
        }
        return name.ToString();
    }

    // A typed value against the library's JSON value: an object's every key
    // by the property of its .NET name, and no property with a value that
    // the JSON does not have (the records aside, which the dump checks); an
    // array element by element, or a pair as X and Y; whole numbers as
    // integers, numbers with a fraction as doubles, strings as strings.
    static void Compare(object typed, object json, string where, List<string> problems)
    {
        if (json == null) {
            if (typed != null) {
                problems.Add(where + ": " + typed + ", the JSON null");
            }
            return;
        }
        if (typed == null) {
            problems.Add(where + ": null, the JSON " + json);
            return;
        }
        var jsonObject = json as JsonObject;
        if (jsonObject != null) {
            var type = typed.GetType();
            foreach (var member in jsonObject) {
                var property = type.GetProperty(DotNetName(member.Key), BindingFlags.Public | BindingFlags.Instance);
                if (property == null) {
                    problems.Add(where + "." + member.Key + ": no property " + DotNetName(member.Key) + " on " + type.Name);
                    continue;
                }
                Compare(property.GetValue(typed, null), member.Value, where + "." + member.Key, problems);
            }
            foreach (var property in type.GetProperties(BindingFlags.Public | BindingFlags.Instance)) {
                bool inJson = jsonObject.Keys.Any(k => DotNetName(k) == property.Name);
                if (!inJson && property.Name != "Record" && property.GetValue(typed, null) != null) {
                    problems.Add(where + ": " + type.Name + "." + property.Name + " has a value the JSON does not have");
                }
            }
            return;
        }
        var jsonList = json as IReadOnlyList<object>;
        if (jsonList != null) {
            if (typed is string) {
                problems.Add(where + ": a string, the JSON an array");
                return;
            }
            var enumerable = typed as IEnumerable;
            if (enumerable == null) {
                // A pair: X and Y.
                var x = typed.GetType().GetProperty("X");
                var y = typed.GetType().GetProperty("Y");
                if (jsonList.Count != 2 || x == null || y == null) {
                    problems.Add(where + ": " + typed.GetType().Name + ", the JSON an array of " + jsonList.Count);
                    return;
                }
                Compare(x.GetValue(typed, null), jsonList[0], where + "[0]", problems);
                Compare(y.GetValue(typed, null), jsonList[1], where + "[1]", problems);
                return;
            }
            var items = enumerable.Cast<object>().ToList();
            if (items.Count != jsonList.Count) {
                problems.Add(string.Format("{0}: {1} items, the JSON {2}", where, items.Count, jsonList.Count));
                return;
            }
            for (int i = 0; i < items.Count; ++i) {
                Compare(items[i], jsonList[i], where + "[" + i + "]", problems);
            }
            return;
        }
        if (json is long) {
            bool integral = typed is int || typed is long || typed is short;
            if (!integral || Convert.ToInt64(typed) != (long)json) {
                problems.Add(string.Format("{0}: {1} ({2}), the JSON {3}", where, typed, typed.GetType().Name, json));
            }
            return;
        }
        if (json is double) {
            if (!(typed is double) || !((double)typed).Equals((double)json)) {
                problems.Add(string.Format("{0}: {1} ({2}), the JSON {3}", where, typed, typed.GetType().Name, json));
            }
            return;
        }
        if (!typed.Equals(json)) {
            problems.Add(string.Format("{0}: \"{1}\", the JSON \"{2}\"", where, typed, json));
        }
    }

    // ---- a program's run

    struct Ran
    {
        public int Exit;
        public byte[] Output;
        public string Error;
    }

    static Ran Run(string program, params string[] arguments)
    {
        var start = new ProcessStartInfo(program, string.Join(" ", arguments.Select(Quoted))) {
            UseShellExecute = false, RedirectStandardOutput = true, RedirectStandardError = true,
            StandardErrorEncoding = new UTF8Encoding(false) };
        // Under the sanitizers mono runs with their shared runtime preloaded;
        // a program of this build links its own and would not start beside it.
        start.EnvironmentVariables.Remove("LD_PRELOAD");
        using (var process = Process.Start(start)) {
            var error = process.StandardError.ReadToEndAsync();
            var output = new MemoryStream();
            process.StandardOutput.BaseStream.CopyTo(output);
            process.WaitForExit();
            return new Ran { Exit = process.ExitCode, Output = output.ToArray(), Error = error.Result };
        }
    }

    static string Quoted(string argument)
    {
        return "\"" + argument.Replace("\"", "\\\"") + "\"";
    }

    // ---- reading-errors: files that do not read

    static void ReadingErrors(string header, string expectedDirectory, string workDirectory)
    {
        if (Directory.Exists(workDirectory)) {
            Directory.Delete(workDirectory, true);
        }
        Directory.CreateDirectory(workDirectory);
        ReadingDeclarations(header);

        byte[] slab = File.ReadAllBytes(Path.Combine(expectedDirectory, "slab", "slab-600.txt"));
        string slabText = Encoding.ASCII.GetString(slab);

        // Nothing but a line end or blanks: no header where one should be.
        Stops(Encoding.ASCII.GetBytes("\r\n"), 1, 1, "expected \"HEADER__\" or the end of the file", "a line end alone");
        Stops(Encoding.ASCII.GetBytes("   "), 1, 1, "expected \"HEADER__\" or the end of the file", "three blanks");
        Stops(new byte[] { 0, 0xff, 0x80 }, 1, 1, "expected \"HEADER__\" or the end of the file", "three bytes not text");

        // Cut off: after the header's name, after its version, inside the
        // order's first line, and before the last END.
        Stops(Encoding.ASCII.GetBytes("HEADER__\r\n"), 2, 1,
            "expected a number of at least 3 places in HEADER__, but the file ends there", "cut after HEADER__");
        Stops(Encoding.ASCII.GetBytes("HEADER__\r\n600\r\n"), 3, 1,
            "expected a text of 20 places in HEADER__, but the file ends there", "cut after the version");
        // A stop names the field where it stands: the order number fills
        // columns 1 to 20 of line 3, the next text starts at 22.
        Stops(Cut(slab, slabText.IndexOf("A-2026-1047") + 11), 3, 1,
            "expected a text of 20 places in HEADER__, but the file ends there", "cut inside the order number");
        Stops(Cut(slab, slabText.IndexOf("PLT01") + 3), 3, 22, null, "cut inside the order's second text");
        // The slab has 78 lines; without its last the reading wants it.
        Stops(Cut(slab, slabText.LastIndexOf("END HEADER__")), 78, 1, null, "cut before END HEADER__");

        // Broken: a letter in the version, in the number at column 42 of
        // line 3, a header of another name.
        Stops(Replaced(slab, "\r\n600\r\n", "\r\n6x0\r\n"), 2, 1, null, "a letter in the version");
        Stops(Replaced(slab, " LINE3 05 ", " LINE3 0x "), 3, 42, null, "a letter in a number of the order");
        Stops(Replaced(slab, "HEADER__\r\n", "HEADER_X\r\n"), 1, 1, null, "HEADER_X");

        // A missing path, and a folder: nothing opened.
        string missing = Path.Combine(workDirectory, "no such file.uni");
        try {
            UnitechnikFile.Read(missing);
            Check(false, "a missing path throws");
        } catch (UnitechnikReadException e) {
            Check(e.Path == missing && e.Line == 0 && e.Column == 0 && e.PartlyRead == null
                && e.Reason == "cannot read \"" + missing + "\"",
                "a missing path throws at 0:0: " + e.Message);
        }
        try {
            UnitechnikFile.Read(workDirectory);
            Check(false, "a folder throws");
        } catch (UnitechnikReadException e) {
            Check(e.Path == workDirectory && e.Line == 0 && e.Column == 0, "a folder throws at 0:0: " + e.Message);
        }

        // A file of no bytes holds no orders: the writer writes it for a
        // document without any (orders/empty.txt).
        string empty = Path.Combine(workDirectory, "empty.uni");
        File.WriteAllBytes(empty, new byte[0]);
        var none = UnitechnikFile.Read(empty);
        Check(none.Orders.Count == 0 && none.Departures.Count == 0 && none.BareLineEnds == 0,
            "a file of no bytes reads as no orders");
        Check(UnitechnikFile.Read(new byte[0]).Orders.Count == 0, "no bytes read as no orders");

        // A path with letters beyond ASCII goes to the library as UTF-8.
        string named = Path.Combine(workDirectory, "Decke \u00d6ffnung \u03a9.uni");
        File.WriteAllBytes(named, slab);
        Check(UnitechnikFile.Read(named).Orders.Count == 1, "a path beyond ASCII reads");

        Throws<ArgumentNullException>(() => UnitechnikFile.Read((string)null), "a null path");
        Throws<ArgumentNullException>(() => UnitechnikFile.Read((byte[])null), "null bytes");
        Throws<ArgumentException>(() => UnitechnikFile.Read(empty + "\0.txt"), "a path with a NUL");

        // Every cut of the slab, and every byte of it made an 'x': each reads
        // or throws where the library stops, and nothing else happens.
        int cuts = 0, cutsAsLibrary = 0;
        for (int length = 0; length <= slab.Length; ++length) {
            ++cuts;
            if (AsLibrary(Cut(slab, length))) {
                ++cutsAsLibrary;
            }
        }
        Check(cutsAsLibrary == cuts, string.Format("{0} of {1} cuts of the slab read as the library reads them",
            cutsAsLibrary, cuts));
        int changes = 0, changesAsLibrary = 0;
        for (int at = 0; at < slab.Length; ++at) {
            var changed = (byte[])slab.Clone();
            changed[at] = (byte)'x';
            ++changes;
            if (AsLibrary(changed)) {
                ++changesAsLibrary;
            }
        }
        Check(changesAsLibrary == changes, string.Format(
            "{0} of {1} slabs with one byte made 'x' read as the library reads them", changesAsLibrary, changes));

        // Not JSON: what the strict reader refuses.
        foreach (var text in new[] { "", "{", "[1,]", "{\"a\":1,\"a\":2}", "01", "1.", "-", "\"\\x\"", "\"\u0001\"",
                     "\"\\ud800\"", "\"\\udc00\"", "\"\\ud800\\u0041\"", "\"\ud800x\"", "\"\udc00x\"", "tru", "1 2", "{\"a\" 1}", "1e999" }) {
            Throws<FormatException>(() => Json.Parse(text), "not JSON: " + text);
        }
        Throws<FormatException>(() => Json.Parse(new byte[] { 0x22, 0xc3, 0x22 }), "not JSON: bytes not UTF-8");
        var parsed = (JsonObject)Json.Parse(
            " {\"s\": \"a\\\"\\\\\\/\\b\\f\\n\\r\\t\\u00e9\\ud83d\\ude00\u00fc\", \"n\": [0, -12, 3.5, -1e2, 9223372036854775808],"
            + " \"t\": true, \"f\": false, \"z\": null, \"o\": {}} ");
        var numbers = (IReadOnlyList<object>)parsed["n"];
        Check((string)parsed["s"] == "a\"\\/\b\f\n\r\t\u00e9\ud83d\ude00\u00fc" && (long)numbers[0] == 0
            && (long)numbers[1] == -12 && (double)numbers[2] == 3.5 && (double)numbers[3] == -100.0
            && numbers[4] is double && (bool)parsed["t"] && !(bool)parsed["f"] && parsed["z"] == null
            && ((JsonObject)parsed["o"]).Count == 0 && string.Join(",", parsed.Keys) == "s,n,t,f,z,o",
            "JSON: strings with escapes and surrogate pairs, numbers, literals, the keys' order");

        // Json.Same, which the comparisons above stand on.
        Check(Json.Same(Json.Parse("{\"a\": [1, 2.5, \"x\", null, true], \"b\": {}}"),
                Json.Parse("{\"b\": {}, \"a\": [1, 2.5, \"x\", null, true]}")),
            "JSON: the same values with their keys in another order are the same");
        foreach (var pair in new[] { new[] { "1", "2" }, new[] { "1", "1.0" }, new[] { "[1, 2]", "[2, 1]" },
                     new[] { "[1]", "[1, 1]" }, new[] { "{\"a\": 1}", "{\"b\": 1}" },
                     new[] { "{\"a\": 1}", "{\"a\": 1, \"b\": 2}" }, new[] { "\"a\"", "\"A\"" },
                     new[] { "null", "false" }, new[] { "true", "false" }, new[] { "{}", "[]" } }) {
            Check(!Json.Same(Json.Parse(pair[0]), Json.Parse(pair[1])) && !Json.Same(Json.Parse(pair[1]), Json.Parse(pair[0])),
                "JSON: " + pair[0] + " and " + pair[1] + " differ");
        }
    }

    static byte[] Cut(byte[] bytes, int length)
    {
        var cut = new byte[length];
        Array.Copy(bytes, cut, length);
        return cut;
    }

    static byte[] Replaced(byte[] bytes, string from, string to)
    {
        string text = Encoding.ASCII.GetString(bytes);
        int at = text.IndexOf(from, StringComparison.Ordinal);
        if (at < 0) {
            throw new ArgumentException("not in the file: " + from);
        }
        return Encoding.ASCII.GetBytes(text.Substring(0, at) + to + text.Substring(at + from.Length));
    }

    // The bytes throw at LINE:COLUMN, with the reason when one is given.
    static void Stops(byte[] bytes, int line, int column, string reason, string what)
    {
        try {
            UnitechnikFile.Read(bytes);
            Check(false, what + ": did not throw");
        } catch (UnitechnikReadException e) {
            Check(e.Line == line && e.Column == column && (reason == null || e.Reason == reason) && e.Path == null
                && e.PartlyRead != null,
                string.Format("{0}: throws at {1}:{2} ({3}:{4} expected): {5}", what, e.Line, e.Column, line, column,
                    e.Message));
        } catch (Exception e) {
            Check(false, what + ": threw " + e.GetType().Name + ": " + e.Message);
        }
    }

    // Reads bytes as the binding and as the library: the same outcome.
    static bool AsLibrary(byte[] bytes)
    {
        var library = (JsonObject)Json.Parse(ReadingNativeMethods.TakeJson(ReadingNativeMethods.itrReadBytes(
            bytes.Length == 0 ? null : bytes, new UIntPtr((ulong)bytes.Length), ReadingNativeMethods.All)));
        UnitechnikFile file;
        try {
            file = UnitechnikFile.Read(bytes);
            if (!(bool)library["ok"]) {
                return false;
            }
        } catch (UnitechnikReadException e) {
            var error = library["error"] as JsonObject;
            if ((bool)library["ok"] || error == null || e.Line != (long)error["line"]
                || e.Column != (long)error["column"] || e.Reason != (string)error["message"]) {
                return false;
            }
            file = e.PartlyRead;
        } catch (Exception e) {
            Console.WriteLine("        " + e.GetType().Name + ": " + e.Message);
            return false;
        }
        if (file == null) {
            return false;
        }
        // What was read, to the stop or to the end, as the library has it.
        var problems = new List<string>();
        Compare(file.Orders, ((JsonObject)library["plant"])["orders"], "orders", problems);
        Compare(file.Departures, library["departures"], "departures", problems);
        Compare(file.BareLineEnds, library["bareLineEnds"], "bareLineEnds", problems);
        if (problems.Count > 0) {
            Console.WriteLine("        " + Problems(problems));
        }
        return problems.Count == 0 && Json.Same(file.Records(), library["document"])
            && Json.Same(file.Bom(), library["bom"]);
    }

    // One declaration for each call of the reading header, by its own name,
    // from "itunitechnik_reading", and nothing else.
    static void ReadingDeclarations(string header)
    {
        var calls = Regex.Matches(File.ReadAllText(header), @"ITR_API\s+[^;(]*?\b(itr\w+)\s*\(")
            .Cast<Match>().Select(m => m.Groups[1].Value).ToList();
        var declared = typeof(ReadingNativeMethods).GetMethods(BindingFlags.Public | BindingFlags.Static)
            .Where(m => (m.Attributes & MethodAttributes.PinvokeImpl) != 0).ToList();
        Check(calls.Count == 6 && declared.Count == calls.Count,
            string.Format("{0} calls in the reading header, {1} declarations", calls.Count, declared.Count));
        foreach (var name in calls) {
            Check(declared.Any(m => m.Name == name), "declared: " + name);
        }
        foreach (var method in declared) {
            var import = (DllImportAttribute)method.GetCustomAttributes(typeof(DllImportAttribute), false).Single();
            Check(import.Value == "itunitechnik_reading" && import.CallingConvention == CallingConvention.Cdecl,
                method.Name + " imports from itunitechnik_reading");
        }
    }
}
