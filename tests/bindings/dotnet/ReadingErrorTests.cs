// The reading side of the .NET binding on files that do not read
// (BindingTests.exe reading-errors, see ReadingTests.cs): broken, cut-off
// and empty files and a missing path throw UnitechnikReadException where
// they stop, as the library does; and the calls of the reading header
// declared, each by its own name.

using System;
using System.Collections.Generic;
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
