// The .NET binding driven against the shared library, as a plug-in would
// drive it.
//
//   BindingTests.exe layout LAYOUT-PROGRAM EXPORT-LIST
//       the blocks' sizes and field offsets against those the C compiler
//       gives the header (LAYOUT-PROGRAM prints them), and one declaration
//       for each name of EXPORT-LIST
//   BindingTests.exe documents EXPECTED-DIRECTORY C-EXAMPLE-FILE WORK-DIRECTORY
//       the example slab, byte for byte as the C example host writes it, and
//       the golden scenarios of tests/functional, through every export
//       (DocumentTests.cs)
//   BindingTests.exe reading ... and reading-errors ...
//       the reading side (ReadingTests.cs, ReadingComparison.cs and
//       ReadingErrorTests.cs)

using System;
using System.Collections.Generic;
using System.Diagnostics;
using System.IO;
using System.Linq;
using System.Reflection;
using System.Runtime.InteropServices;
using ItUnitechnik.Interop;

static partial class BindingTests
{
    static int passed;
    static int failed;

    static int Main(string[] args)
    {
        if (args.Length == 3 && args[0] == "layout") {
            Layout(args[1], args[2]);
        } else if (args.Length == 4 && args[0] == "documents") {
            Documents(args[1], args[2], args[3]);
        } else if (args.Length == 7 && args[0] == "reading") {
            Reading(args[1], args[2], args[3], args[4], args[5], int.Parse(args[6]));
        } else if (args.Length == 4 && args[0] == "reading-errors") {
            ReadingErrors(args[1], args[2], args[3]);
        } else {
            Console.Error.WriteLine("usage: BindingTests.exe layout LAYOUT-PROGRAM EXPORT-LIST");
            Console.Error.WriteLine("       BindingTests.exe documents EXPECTED-DIRECTORY C-EXAMPLE-FILE WORK-DIRECTORY");
            Console.Error.WriteLine("       BindingTests.exe reading EXPECTED-DIRECTORY C-EXAMPLE-FILE TOOL GENERATOR "
                + "WORK-DIRECTORY COUNT");
            Console.Error.WriteLine("       BindingTests.exe reading-errors HEADER EXPECTED-DIRECTORY WORK-DIRECTORY");
            return 2;
        }
        Console.WriteLine("{0} passed, {1} failed", passed, failed);
        return failed == 0 && passed > 0 ? 0 : 1;
    }

    static void Check(bool ok, string what)
    {
        if (ok) {
            ++passed;
            Console.WriteLine("ok      " + what);
        } else {
            ++failed;
            Console.WriteLine("FAILED  " + what);
        }
    }

    static void Throws<T>(Action action, string what) where T : Exception
    {
        try {
            action();
        } catch (T) {
            Check(true, what);
            return;
        } catch (Exception other) {
            Check(false, what + ": threw " + other.GetType().Name);
            return;
        }
        Check(false, what + ": did not throw");
    }

    // ---- layout

    static void Layout(string layoutProgram, string exportList)
    {
        var start = new ProcessStartInfo(layoutProgram) { UseShellExecute = false, RedirectStandardOutput = true };
        string[] lines;
        using (var process = Process.Start(start)) {
            lines = process.StandardOutput.ReadToEnd().Split(new[] { '\n' }, StringSplitOptions.RemoveEmptyEntries);
            process.WaitForExit();
            Check(process.ExitCode == 0, "the layout program ran");
        }
        var structs = new[] { typeof(ItCutoutBlock), typeof(ItBarBlock), typeof(ItFreeFormSegment) };
        var named = new HashSet<string>();
        foreach (var line in lines) {
            // "ItBarBlock size 64" or "ItBarBlock.rodKind 56"
            var words = line.Trim().Split(' ');
            int number = int.Parse(words[words.Length - 1]);
            if (words.Length == 3 && words[1] == "size") {
                var type = structs.Single(t => t.Name == words[0]);
                Check(Marshal.SizeOf(type) == number,
                    string.Format("{0}: Marshal.SizeOf {1}, the header {2}", type.Name, Marshal.SizeOf(type), number));
            } else {
                var parts = words[0].Split('.');
                var type = structs.Single(t => t.Name == parts[0]);
                named.Add(words[0]);
                int offset = Marshal.OffsetOf(type, parts[1]).ToInt32();
                Check(offset == number, string.Format("{0}: Marshal.OffsetOf {1}, the header {2}", words[0], offset, number));
            }
        }
        // No field of ours that the header does not have.
        foreach (var type in structs) {
            foreach (var field in type.GetFields(BindingFlags.Public | BindingFlags.Instance)) {
                Check(named.Contains(type.Name + "." + field.Name), type.Name + "." + field.Name + " is a field of the header");
            }
        }

        // One declaration per export, by its own name, and nothing else.
        var exports = File.ReadAllLines(exportList).Select(l => l.Trim()).Where(l => l.Length > 0).ToList();
        var declared = typeof(NativeMethods).GetMethods(BindingFlags.Public | BindingFlags.Static)
            .Where(m => (m.Attributes & MethodAttributes.PinvokeImpl) != 0).ToList();
        Check(exports.Count == 17 && declared.Count == exports.Count,
            string.Format("{0} exports, {1} declarations", exports.Count, declared.Count));
        foreach (var name in exports) {
            Check(declared.Any(m => m.Name == name), "declared: " + name);
        }
        foreach (var method in declared) {
            var import = (DllImportAttribute)method.GetCustomAttributes(typeof(DllImportAttribute), false).Single();
            bool takesText = method.GetParameters().Any(p => p.ParameterType == typeof(string)
                || p.ParameterType == typeof(string[]));
            Check(import.Value == "itunitechnik" && (!takesText || import.CharSet == CharSet.Unicode),
                method.Name + " imports from itunitechnik" + (takesText ? " with 16-bit texts" : ""));
        }
        // The one-byte bool of startOrder.
        var clear = typeof(NativeMethods).GetMethod("startOrder").GetParameters().Last();
        var marshal = clear.GetCustomAttributes(typeof(MarshalAsAttribute), false).Cast<MarshalAsAttribute>().SingleOrDefault();
        Check(clear.ParameterType == typeof(bool) && marshal != null && marshal.Value == UnmanagedType.U1,
            "startOrder's clearDocument is marshalled as one byte");
    }
}
