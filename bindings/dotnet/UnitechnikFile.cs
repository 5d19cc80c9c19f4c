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
// A file that does not read to its end throws UnitechnikReadException with
// the place where the reading stopped. The library keeps nothing between
// calls, so files may be read on several threads at once.

using System;
using System.Collections.Generic;
using System.Collections.ObjectModel;
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

    /// <summary>Two lengths in millimetres, along x and along y.</summary>
    public struct Extents
    {
        public Extents(int x, int y)
        {
            X = x;
            Y = y;
        }

        public int X { get; }
        public int Y { get; }
    }

    /// <summary>A point of an outline in millimetres.</summary>
    public struct PlanPoint
    {
        public PlanPoint(int x, int y)
        {
            X = x;
            Y = y;
        }

        public int X { get; }
        public int Y { get; }
    }

    /// <summary>An element (a slab, a wall) with the records of its layers taken in.</summary>
    public sealed class Element
    {
        internal Element(JsonObject plant, JsonObject record)
        {
            Number = JsonValues.Text(plant, "number");
            Text = JsonValues.Text(plant, "text");
            var extents = JsonValues.List(plant, "extents");
            Extents = new Extents(JsonValues.PairX(extents, "extents"), JsonValues.PairY(extents, "extents"));
            Thickness = JsonValues.Int(plant, "thickness");
            Area = JsonValues.Double(plant, "area");
            Contours = JsonValues.Map(plant, "contours", o => new Contour(o));
            Cutouts = JsonValues.Map(plant, "cutouts", o => new Cutout(o));
            Parts = JsonValues.Map(plant, "parts", o => new Part(o));
            Bars = JsonValues.Map(plant, "bars", o => new BarSet(o));
            Girders = JsonValues.Map(plant, "girders", o => new GirderGroup(o));
            Mats = JsonValues.Map(plant, "mats", o => new Mat(o));
            Irons = JsonValues.Map(plant, "irons", o => new Iron(o));
            Layers = JsonValues.Map(plant, "layers", o => new Layer(o));
            Record = record;
        }

        /// <summary>The element's number as the file has it, trailing blanks dropped.</summary>
        public string Number { get; }
        public string Text { get; }
        /// <summary>Its extents along x and y, mm.</summary>
        public Extents Extents { get; }
        /// <summary>mm.</summary>
        public int Thickness { get; }
        /// <summary>m².</summary>
        public double Area { get; }
        public IReadOnlyList<Contour> Contours { get; }
        public IReadOnlyList<Cutout> Cutouts { get; }
        /// <summary>The mounted parts.</summary>
        public IReadOnlyList<Part> Parts { get; }
        /// <summary>The bar sets outside mats.</summary>
        public IReadOnlyList<BarSet> Bars { get; }
        /// <summary>The girder groups outside mats.</summary>
        public IReadOnlyList<GirderGroup> Girders { get; }
        public IReadOnlyList<Mat> Mats { get; }
        /// <summary>The external irons.</summary>
        public IReadOnlyList<Iron> Irons { get; }
        /// <summary>The concrete layers.</summary>
        public IReadOnlyList<Layer> Layers { get; }
        /// <summary>The element's record with every member, as `unitechnik dump --json` has it.</summary>
        public JsonObject Record { get; }
    }

    /// <summary>
    /// One piece of an outline. Kind is "line" (From, To), "arc" (Centre,
    /// Radius, Start, End in degrees), "circle" (Centre, Radius), "polygon"
    /// (Points) or "none"; what the kind does not have is null.
    /// </summary>
    public sealed class OutlinePiece
    {
        internal OutlinePiece(JsonObject piece)
        {
            Kind = JsonValues.Text(piece, "kind");
            From = JsonValues.OptionalPoint(piece, "from");
            To = JsonValues.OptionalPoint(piece, "to");
            Centre = JsonValues.OptionalPoint(piece, "centre");
            Radius = JsonValues.OptionalInt(piece, "radius");
            Start = JsonValues.OptionalInt(piece, "start");
            End = JsonValues.OptionalInt(piece, "end");
            if (piece.ContainsKey("points")) {
                var points = new List<PlanPoint>();
                foreach (var point in JsonValues.List(piece, "points")) {
                    points.Add(JsonValues.Point(point, "points"));
                }
                Points = points.AsReadOnly();
            }
        }

        public string Kind { get; }
        public PlanPoint? From { get; }
        public PlanPoint? To { get; }
        public PlanPoint? Centre { get; }
        public int? Radius { get; }
        public int? Start { get; }
        public int? End { get; }
        public IReadOnlyList<PlanPoint> Points { get; }
    }

    public sealed class Contour
    {
        internal Contour(JsonObject contour)
        {
            Number = JsonValues.Int(contour, "number");
            Pieces = JsonValues.Map(contour, "pieces", o => new OutlinePiece(o));
        }

        public int Number { get; }
        public IReadOnlyList<OutlinePiece> Pieces { get; }
    }

    /// <summary>An opening.</summary>
    public sealed class Cutout
    {
        internal Cutout(JsonObject cutout)
        {
            Number = JsonValues.Int(cutout, "number");
            Name = JsonValues.Text(cutout, "name");
            Area = JsonValues.Double(cutout, "area");
            Pieces = JsonValues.Map(cutout, "pieces", o => new OutlinePiece(o));
        }

        public int Number { get; }
        public string Name { get; }
        /// <summary>m².</summary>
        public double Area { get; }
        public IReadOnlyList<OutlinePiece> Pieces { get; }
    }

    /// <summary>A mounted part and the pieces of its footprint.</summary>
    public sealed class Part
    {
        internal Part(JsonObject part)
        {
            Number = JsonValues.Int(part, "number");
            Name = JsonValues.Text(part, "name");
            Height = JsonValues.Int(part, "height");
            InstallationHeight = JsonValues.Int(part, "installation_height");
            Pieces = JsonValues.Map(part, "pieces", o => new OutlinePiece(o));
        }

        public int Number { get; }
        public string Name { get; }
        /// <summary>mm.</summary>
        public int Height { get; }
        /// <summary>Above the pallet, mm.</summary>
        public int InstallationHeight { get; }
        public IReadOnlyList<OutlinePiece> Pieces { get; }
    }

    /// <summary>One leg of a bent bar: its length (mm) and the turn to the next leg (degrees).</summary>
    public sealed class BarSegment
    {
        internal BarSegment(JsonObject segment)
        {
            Length = JsonValues.Int(segment, "length");
            Turn = JsonValues.Int(segment, "turn");
        }

        public int Length { get; }
        public int Turn { get; }
    }

    /// <summary>A set of identical parallel bars; a mesh wire is a set of one.</summary>
    public sealed class BarSet
    {
        internal BarSet(JsonObject set)
        {
            Count = JsonValues.Int(set, "count");
            Diameter = JsonValues.Int(set, "diameter");
            Length = JsonValues.Int(set, "length");
            Pitch = JsonValues.Int(set, "pitch");
            X = JsonValues.Int(set, "x");
            Y = JsonValues.Int(set, "y");
            Z = JsonValues.Int(set, "z");
            Rotation = JsonValues.Int(set, "rotation");
            Grade = JsonValues.Text(set, "grade");
            Article = JsonValues.Text(set, "article");
            SpacerType = JsonValues.Int(set, "spacer_type");
            SpacerStart = JsonValues.Int(set, "spacer_start");
            SpacerPitch = JsonValues.Int(set, "spacer_pitch");
            Segments = JsonValues.Map(set, "segments", o => new BarSegment(o));
        }

        public int Count { get; }
        /// <summary>mm.</summary>
        public int Diameter { get; }
        /// <summary>Of one bar, mm.</summary>
        public int Length { get; }
        /// <summary>Signed distance between neighbouring bars, mm.</summary>
        public int Pitch { get; }
        /// <summary>Start of the first bar in the element's frame, mm.</summary>
        public int X { get; }
        public int Y { get; }
        /// <summary>Height above the pallet, mm.</summary>
        public int Z { get; }
        /// <summary>Direction, degrees counter-clockwise from +x.</summary>
        public int Rotation { get; }
        public string Grade { get; }
        public string Article { get; }
        public int SpacerType { get; }
        public int SpacerStart { get; }
        public int SpacerPitch { get; }
        /// <summary>The legs of a bent bar; none for a straight one.</summary>
        public IReadOnlyList<BarSegment> Segments { get; }
    }

    /// <summary>A group of identical parallel girders.</summary>
    public sealed class GirderGroup
    {
        internal GirderGroup(JsonObject group)
        {
            Count = JsonValues.Int(group, "count");
            Type = JsonValues.Text(group, "type");
            Length = JsonValues.Int(group, "length");
            Spacing = JsonValues.Int(group, "spacing");
            X = JsonValues.Int(group, "x");
            Y = JsonValues.Int(group, "y");
            Rotation = JsonValues.Int(group, "rotation");
            Height = JsonValues.Int(group, "height");
            ChordDiameter = JsonValues.Int(group, "chord_diameter");
            Weight = JsonValues.Double(group, "weight");
            InstallationHeight = JsonValues.Int(group, "installation_height");
        }

        public int Count { get; }
        public string Type { get; }
        /// <summary>Of one girder, mm.</summary>
        public int Length { get; }
        /// <summary>Signed distance between the girders, mm.</summary>
        public int Spacing { get; }
        /// <summary>Start of the first girder's axis in the element's frame, mm.</summary>
        public int X { get; }
        public int Y { get; }
        /// <summary>Degrees counter-clockwise from +x.</summary>
        public int Rotation { get; }
        /// <summary>mm.</summary>
        public int Height { get; }
        /// <summary>Of the upper chord, mm.</summary>
        public int ChordDiameter { get; }
        /// <summary>Of one girder, kg.</summary>
        public double Weight { get; }
        /// <summary>Above the pallet, mm.</summary>
        public int InstallationHeight { get; }
    }

    /// <summary>A mat with its bars and girders, these in the element's frame.</summary>
    public sealed class Mat
    {
        internal Mat(JsonObject mat)
        {
            Number = JsonValues.Int(mat, "number");
            Type = JsonValues.Text(mat, "type");
            Length = JsonValues.Int(mat, "length");
            Width = JsonValues.Int(mat, "width");
            X = JsonValues.Int(mat, "x");
            Y = JsonValues.Int(mat, "y");
            Z = JsonValues.Int(mat, "z");
            Bars = JsonValues.Map(mat, "bars", o => new BarSet(o));
            Girders = JsonValues.Map(mat, "girders", o => new GirderGroup(o));
        }

        public int Number { get; }
        public string Type { get; }
        /// <summary>Along x, mm.</summary>
        public int Length { get; }
        /// <summary>Along y, mm.</summary>
        public int Width { get; }
        /// <summary>The mat's origin, its lower left corner, mm.</summary>
        public int X { get; }
        public int Y { get; }
        public int Z { get; }
        public IReadOnlyList<BarSet> Bars { get; }
        public IReadOnlyList<GirderGroup> Girders { get; }
    }

    /// <summary>An external iron: counted and weighed.</summary>
    public sealed class Iron
    {
        internal Iron(JsonObject iron)
        {
            Number = JsonValues.Int(iron, "number");
            Name = JsonValues.Text(iron, "name");
            Count = JsonValues.Int(iron, "count");
            Weight = JsonValues.Double(iron, "weight");
            Code = JsonValues.Int(iron, "code");
        }

        public int Number { get; }
        public string Name { get; }
        public int Count { get; }
        /// <summary>Of the pieces together, kg.</summary>
        public double Weight { get; }
        public int Code { get; }
    }

    /// <summary>A concrete layer.</summary>
    public sealed class Layer
    {
        internal Layer(JsonObject layer)
        {
            Number = JsonValues.Int(layer, "number");
            Kind = JsonValues.Int(layer, "kind");
            Thickness = JsonValues.Int(layer, "thickness");
            Name = JsonValues.Text(layer, "name");
            UnitWeight = JsonValues.Double(layer, "unit_weight");
            Volume = JsonValues.Double(layer, "volume");
            Mass = JsonValues.Double(layer, "mass");
        }

        public int Number { get; }
        /// <summary>0 concrete, 2 insulation.</summary>
        public int Kind { get; }
        /// <summary>mm.</summary>
        public int Thickness { get; }
        public string Name { get; }
        /// <summary>kg/dm³.</summary>
        public double UnitWeight { get; }
        /// <summary>dm³.</summary>
        public double Volume { get; }
        /// <summary>Unit weight times volume, kg.</summary>
        public double Mass { get; }
    }

    // The values of the library's JSON by their keys; a key missing or of
    // another kind means the JSON is not what this binding was written for.
    internal static class JsonValues
    {
        public static FormatException Unexpected(string what)
        {
            return new FormatException("the reading library's JSON does not hold " + what);
        }

        private static object Member(JsonObject o, string key)
        {
            object value;
            if (!o.TryGetValue(key, out value)) {
                throw Unexpected("\"" + key + "\"");
            }
            return value;
        }

        public static JsonObject AsObject(object value, string key)
        {
            var o = value as JsonObject;
            if (o == null) {
                throw Unexpected("an object in \"" + key + "\"");
            }
            return o;
        }

        public static IReadOnlyList<object> AsList(object value, string key)
        {
            var list = value as IReadOnlyList<object>;
            if (list == null) {
                throw Unexpected("an array in \"" + key + "\"");
            }
            return list;
        }

        public static string AsText(object value, string key)
        {
            var text = value as string;
            if (text == null) {
                throw Unexpected("a string in \"" + key + "\"");
            }
            return text;
        }

        public static long AsLong(object value, string key)
        {
            if (!(value is long)) {
                throw Unexpected("a whole number in \"" + key + "\"");
            }
            return (long)value;
        }

        public static int AsInt(object value, string key)
        {
            long number = AsLong(value, key);
            if (number < int.MinValue || number > int.MaxValue) {
                throw Unexpected("a number of 32 bits in \"" + key + "\"");
            }
            return (int)number;
        }

        public static JsonObject Object(JsonObject o, string key)
        {
            return AsObject(Member(o, key), key);
        }

        public static IReadOnlyList<object> List(JsonObject o, string key)
        {
            return AsList(Member(o, key), key);
        }

        public static string Text(JsonObject o, string key)
        {
            return AsText(Member(o, key), key);
        }

        public static bool Bool(JsonObject o, string key)
        {
            object value = Member(o, key);
            if (!(value is bool)) {
                throw Unexpected("true or false in \"" + key + "\"");
            }
            return (bool)value;
        }

        public static long Long(JsonObject o, string key)
        {
            return AsLong(Member(o, key), key);
        }

        public static int Int(JsonObject o, string key)
        {
            return AsInt(Member(o, key), key);
        }

        // A number with a fraction; a whole one is taken too.
        public static double Double(JsonObject o, string key)
        {
            object value = Member(o, key);
            if (value is double) {
                return (double)value;
            }
            return AsLong(value, key);
        }

        public static int? OptionalInt(JsonObject o, string key)
        {
            return o.ContainsKey(key) ? Int(o, key) : (int?)null;
        }

        public static int PairX(IReadOnlyList<object> pair, string key)
        {
            if (pair.Count != 2) {
                throw Unexpected("a pair of numbers in \"" + key + "\"");
            }
            return AsInt(pair[0], key);
        }

        public static int PairY(IReadOnlyList<object> pair, string key)
        {
            if (pair.Count != 2) {
                throw Unexpected("a pair of numbers in \"" + key + "\"");
            }
            return AsInt(pair[1], key);
        }

        public static PlanPoint Point(object value, string key)
        {
            var pair = AsList(value, key);
            return new PlanPoint(PairX(pair, key), PairY(pair, key));
        }

        public static PlanPoint? OptionalPoint(JsonObject o, string key)
        {
            return o.ContainsKey(key) ? Point(o[key], key) : (PlanPoint?)null;
        }

        public static IReadOnlyList<T> Map<T>(JsonObject o, string key, Func<JsonObject, T> make)
        {
            var result = new List<T>();
            foreach (var item in List(o, key)) {
                result.Add(make(AsObject(item, key)));
            }
            return new ReadOnlyCollection<T>(result);
        }
    }
}
