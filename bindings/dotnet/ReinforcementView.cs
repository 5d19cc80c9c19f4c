// The reinforcement and layers of a read element as the plant reads them
// (UnitechnikFile.cs): bar sets and their legs, girder groups, mats, external
// irons and concrete layers, each taken from the library's JSON by the names
// the library gives.

using System.Collections.Generic;

namespace ItUnitechnik
{
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
}
