// Any Unitechnik file read for a .NET host, through the reading library
// (ReadingNativeMethods.cs): the orders with their elements as the plant
// reads them (outlines, parts, bar sets, girder groups, mats, irons, layers),
// every record's members, and the bill of materials.
//
//   var file = UnitechnikFile.Read("slab.uni");
//   foreach (var order in file.Orders)
//       foreach (var element in order.Elements)
//           foreach (var set in element.Bars)
//               Console.WriteLine("{0} x {1} mm, {2} mm long", set.Count, set.Diameter, set.Length);
//
// Every value is taken from the library's JSON by the name the library gives
// it ("count", "chord_diameter", ...); what a numbered member of a record
// means is the library's business (UnitechnikFile.Meanings lists it). Lengths
// and coordinates are whole millimetres in the element's frame: the bars and
// girders of a mat already have the mat's origin added.
//
// The elements' classes stand in PlanView.cs and ReinforcementView.cs, and
// JsonValues.cs takes their values from the JSON.
//
// A file that does not read to its end throws UnitechnikReadException with
// the place where the reading stopped. The library keeps nothing between
// calls, so files may be read on several threads at once.

using System;
using System.Collections.Generic;
using System.Globalization;
using ItUnitechnik.Interop;

namespace ItUnitechnik
{
    /// <summary>A file that did not read to its end, or could not be opened.</summary>
    public sealed class UnitechnikReadException : Exception
    {
        internal UnitechnikReadException(string path, int line, int column, string reason, UnitechnikFile partlyRead)
            : base(Describe(path, line, column, reason))
        {
            Path = path;
            Line = line;
            Column = column;
            Reason = reason;
            PartlyRead = partlyRead;
        }

        /// <summary>The path given to Read; null when bytes were read.</summary>
        public string Path { get; }

        /// <summary>The line where the reading stopped, from 1; 0 when the file could not be opened.</summary>
        public int Line { get; }

        /// <summary>The column where the reading stopped, from 1; 0 when the file could not be opened.</summary>
        public int Column { get; }

        /// <summary>The library's words for what it expected there.</summary>
        public string Reason { get; }

        /// <summary>What was read before the stop; null when the file could not be opened.</summary>
        public UnitechnikFile PartlyRead { get; }

        private static string Describe(string path, int line, int column, string reason)
        {
            string where = path ?? "the bytes";
            if (line == 0) {
                return where + ": " + reason;
            }
            return string.Format(CultureInfo.InvariantCulture, "{0}:{1}:{2}: {3}", where, line, column, reason);
        }
    }

    /// <summary>A read file: its orders, what it needed of the tolerant reading, its records and its bill.</summary>
    public sealed class UnitechnikFile
    {
        private static IReadOnlyList<PlantMeaning> meanings;
        private readonly JsonObject records;
        private readonly JsonObject bom;

        private UnitechnikFile(string path, JsonObject result)
        {
            Path = path;
            var departures = new List<string>();
            foreach (var name in JsonValues.List(result, "departures")) {
                departures.Add(JsonValues.AsText(name, "departures"));
            }
            Departures = departures.AsReadOnly();
            BareLineEnds = JsonValues.Long(result, "bareLineEnds");
            records = JsonValues.Object(result, "document");
            bom = JsonValues.Object(result, "bom");
            var orderRecords = JsonValues.List(records, "orders");
            var plantOrders = JsonValues.List(JsonValues.Object(result, "plant"), "orders");
            if (orderRecords.Count != plantOrders.Count) {
                throw JsonValues.Unexpected("as many orders in \"document\" as in \"plant\"");
            }
            var orders = new List<Order>();
            for (int i = 0; i < plantOrders.Count; ++i) {
                orders.Add(new Order(JsonValues.AsObject(plantOrders[i], "orders"),
                    JsonValues.AsObject(orderRecords[i], "orders")));
            }
            Orders = orders.AsReadOnly();
        }

        /// <summary>Reads the file at a path.</summary>
        /// <exception cref="UnitechnikReadException">The file does not read to its end or cannot be opened.</exception>
        public static UnitechnikFile Read(string path)
        {
            if (path == null) {
                throw new ArgumentNullException("path");
            }
            if (path.IndexOf('\0') >= 0) {
                throw new ArgumentException("a path with a NUL character", "path");
            }
            byte[] json = ReadingNativeMethods.TakeJson(
                ReadingNativeMethods.itrReadFile(ReadingNativeMethods.ZeroTerminated(path), ReadingNativeMethods.All));
            return FromJson(path, json);
        }

        /// <summary>Reads a file held in memory.</summary>
        /// <exception cref="UnitechnikReadException">The bytes do not read to their end.</exception>
        public static UnitechnikFile Read(byte[] bytes)
        {
            if (bytes == null) {
                throw new ArgumentNullException("bytes");
            }
            byte[] json = ReadingNativeMethods.TakeJson(ReadingNativeMethods.itrReadBytes(
                bytes.Length == 0 ? null : bytes, new UIntPtr((ulong)bytes.Length), ReadingNativeMethods.All));
            return FromJson(null, json);
        }

        private static UnitechnikFile FromJson(string path, byte[] json)
        {
            JsonObject result = JsonValues.AsObject(Json.Parse(json), "the result");
            if (JsonValues.Bool(result, "ok")) {
                return new UnitechnikFile(path, result);
            }
            var error = JsonValues.Object(result, "error");
            int line = JsonValues.Int(error, "line");
            UnitechnikFile partlyRead = result.ContainsKey("plant") ? new UnitechnikFile(path, result) : null;
            throw new UnitechnikReadException(path, line, JsonValues.Int(error, "column"),
                JsonValues.Text(error, "message"), partlyRead);
        }

        /// <summary>The path read; null when bytes were read.</summary>
        public string Path { get; }

        public IReadOnlyList<Order> Orders { get; }

        /// <summary>The names of what the file needed of the tolerant reading, such as "texts-by-place".</summary>
        public IReadOnlyList<string> Departures { get; }

        /// <summary>How many lines end in a line feed without its carriage return.</summary>
        public long BareLineEnds { get; }

        /// <summary>The bill of materials, as `unitechnik bom --json` prints it, read as JSON (Json.cs).</summary>
        public JsonObject Bom()
        {
            return bom;
        }

        /// <summary>Every member of every record, as `unitechnik dump --json` prints it under "document".</summary>
        public JsonObject Records()
        {
            return records;
        }

        /// <summary>What the plant reads in each numbered member of a record, as the library's table has it.</summary>
        public static IReadOnlyList<PlantMeaning> Meanings()
        {
            if (meanings == null) {
                var list = new List<PlantMeaning>();
                var table = Json.Parse(ReadingNativeMethods.Utf8(ReadingNativeMethods.itrPlantMeanings()));
                foreach (var row in JsonValues.AsList(table, "the meanings")) {
                    list.Add(new PlantMeaning(JsonValues.AsObject(row, "the meanings")));
                }
                meanings = list.AsReadOnly();
            }
            return meanings;
        }
    }

    /// <summary>One row of the library's table of meanings.</summary>
    public sealed class PlantMeaning
    {
        internal PlantMeaning(JsonObject row)
        {
            Record = JsonValues.Text(row, "record");
            Member = JsonValues.Text(row, "member");
            Name = JsonValues.Text(row, "name");
            Meaning = JsonValues.Text(row, "meaning");
            Unit = JsonValues.Text(row, "unit");
        }

        /// <summary>The record, such as "Rodstock".</summary>
        public string Record { get; }
        /// <summary>Its member, such as "firstSize" or "position.x".</summary>
        public string Member { get; }
        /// <summary>The plant's name of it and the key in the JSON, such as "count".</summary>
        public string Name { get; }
        public string Meaning { get; }
        /// <summary>"mm", "degrees", "kg", ...; empty for a count or a name.</summary>
        public string Unit { get; }
    }

    /// <summary>An order: its text, its format version and its elements.</summary>
    public sealed class Order
    {
        internal Order(JsonObject plant, JsonObject record)
        {
            Number = JsonValues.Text(plant, "number");
            Version = JsonValues.Int(plant, "version");
            Record = record;
            var elementRecords = JsonValues.List(record, "elementParts");
            var plantElements = JsonValues.List(plant, "elements");
            if (elementRecords.Count != plantElements.Count) {
                throw JsonValues.Unexpected("as many elements in \"document\" as in \"plant\"");
            }
            var elements = new List<Element>();
            for (int i = 0; i < plantElements.Count; ++i) {
                elements.Add(new Element(JsonValues.AsObject(plantElements[i], "elements"),
                    JsonValues.AsObject(elementRecords[i], "elementParts")));
            }
            Elements = elements.AsReadOnly();
        }

        /// <summary>The order's text (its number), trailing blanks dropped.</summary>
        public string Number { get; }
        /// <summary>The format version, such as 600.</summary>
        public int Version { get; }
        public IReadOnlyList<Element> Elements { get; }
        /// <summary>The order's record with every member, as `unitechnik dump --json` has it.</summary>
        public JsonObject Record { get; }
    }
}
