// The elements of a read file as the plant reads them (UnitechnikFile.cs):
// their extents and outlines, openings and mounted parts, each taken from the
// library's JSON by the names the library gives.

using System.Collections.Generic;

namespace ItUnitechnik
{
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
}
