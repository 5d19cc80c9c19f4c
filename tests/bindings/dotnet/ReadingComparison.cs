// The reading side of the .NET binding against the library and the tool
// (ReadingTests.cs): a file read by its path and by its bytes, every typed
// value against the library's JSON, the records against `unitechnik dump
// --json` and the bill against `unitechnik bom --json`; and a program's run.

using System;
using System.Collections;
using System.Collections.Generic;
using System.Diagnostics;
using System.IO;
using System.Linq;
using System.Reflection;
using System.Text;
using ItUnitechnik;
using ItUnitechnik.Interop;

static partial class BindingTests
{
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
}
