// What a host hands the Document of Document.cs: points, the placement,
// pieces and segments, the project's texts, girders and bars, each checked
// before it reaches the library; and the texts of a block held for one call.

using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;
using ItUnitechnik.Interop;

namespace ItUnitechnik
{
    /// <summary>A point in whole millimetres.</summary>
    public struct Point
    {
        public Point(int x, int y)
        {
            X = x;
            Y = y;
        }

        public int X { get; }
        public int Y { get; }
    }

    /// <summary>A point of the element's placement; rounded to whole numbers by the library.</summary>
    public struct Point3
    {
        public Point3(double x, double y, double z)
        {
            X = x;
            Y = y;
            Z = z;
        }

        public double X { get; }
        public double Y { get; }
        public double Z { get; }
    }

    /// <summary>The element's placement: three points of x, y and z.</summary>
    public struct Placement
    {
        public Placement(Point3 first, Point3 second, Point3 third)
        {
            First = first;
            Second = second;
            Third = third;
        }

        public Point3 First { get; }
        public Point3 Second { get; }
        public Point3 Third { get; }

        internal double[] ToArray()
        {
            return new[] { First.X, First.Y, First.Z, Second.X, Second.Y, Second.Z, Third.X, Third.Y, Third.Z };
        }
    }

    /// <summary>One straight piece of a mounted part's outline.</summary>
    public struct Piece
    {
        public Piece(Point start, Point end)
        {
            Start = start;
            End = end;
        }

        public Point Start { get; }
        public Point End { get; }
    }

    /// <summary>One segment of a free-form bar: a length and an angle.</summary>
    public struct FreeFormSegment
    {
        public FreeFormSegment(int length, short angle)
        {
            Length = length;
            Angle = angle;
        }

        public int Length { get; }
        public short Angle { get; }
    }

    /// <summary>The order's texts, project, addresses and date; every text empty at first.</summary>
    public sealed class ProjectData
    {
        /// <summary>Empty: the library writes "12345678".</summary>
        public string OrderNumber { get; set; } = "";
        public string OrderText5 { get; set; } = "";
        public string OrderText4 { get; set; } = "";
        public string OrderText8 { get; set; } = "";
        public string ProjectText1 { get; set; } = "";
        public string ProjectText2 { get; set; } = "";
        public string ProjectText3 { get; set; } = "";
        public string ProjectText4 { get; set; } = "";
        public string FirstAddress1 { get; set; } = "";
        public string FirstAddress2 { get; set; } = "";
        public string FirstAddress3 { get; set; } = "";
        public string FirstAddress4 { get; set; } = "";
        public string SecondAddress1 { get; set; } = "";
        public string SecondAddress2 { get; set; } = "";
        public string SecondAddress3 { get; set; } = "";
        public string SecondAddress4 { get; set; } = "";
        /// <summary>dd.mm.yyyy, read by position; SetProjectData needs one.</summary>
        public string Date { get; set; } = "";
        public string OrderText2 { get; set; } = "";
        public string OrderText40 { get; set; } = "";

        /// <summary>The 19 texts in the order of setProjectData's block.</summary>
        internal string[] ToArray()
        {
            var texts = new[] {
                OrderNumber, OrderText5, OrderText4, OrderText8,
                ProjectText1, ProjectText2, ProjectText3, ProjectText4,
                FirstAddress1, FirstAddress2, FirstAddress3, FirstAddress4,
                SecondAddress1, SecondAddress2, SecondAddress3, SecondAddress4,
                Date, OrderText2, OrderText40 };
            foreach (var text in texts) {
                Document.RequireText(text, "data");
            }
            if (!ReadsAsDate(Date)) {
                throw new ArgumentException("the date is not dd.mm.yyyy: \"" + Date + "\"", "data");
            }
            return texts;
        }

        // The library reads the date by position, dd.mm.yyyy, each part as a
        // decimal number that may have blanks and a sign in front. A text too
        // short or a part without a digit ends setProjectData at the first
        // order without a word, that order half set; setProjectData gives
        // nothing back, so the rule is checked here, before the call.
        private static bool ReadsAsDate(string date)
        {
            return date.Length >= 6 && ReadsAsNumber(date.Substring(0, 2)) && ReadsAsNumber(date.Substring(3, 2))
                && ReadsAsNumber(date.Substring(6, Math.Min(4, date.Length - 6)));
        }

        private static bool ReadsAsNumber(string part)
        {
            int i = 0;
            while (i < part.Length && " \t\n\v\f\r".IndexOf(part[i]) >= 0) {
                ++i;
            }
            if (i < part.Length && (part[i] == '+' || part[i] == '-')) {
                ++i;
            }
            return i < part.Length && part[i] >= '0' && part[i] <= '9';
        }
    }

    /// <summary>One braced girder: ten numbers of addSet's kind 5.</summary>
    public sealed class BracedGirder
    {
        public int TypeNumber { get; set; }
        public int FirstSize { get; set; }
        public Point Position { get; set; }
        public int PositionZ { get; set; }
        public int Rotation { get; set; }
        public int AuxNumber { get; set; }
        public int ShortNumber { get; set; }
        /// <summary>Thousandths: the file holds this value divided by 1000.</summary>
        public int ValueThousandths { get; set; }
        public int LastNumber { get; set; }

        internal void AppendTo(List<int> values)
        {
            values.AddRange(new[] {
                TypeNumber, FirstSize, Position.X, Position.Y, PositionZ, Rotation,
                AuxNumber, ShortNumber, ValueThousandths, LastNumber });
        }
    }

    /// <summary>A bar of the mat added last (addCFSRodstock).</summary>
    public sealed class MatBar
    {
        public int RodKind { get; set; }
        public string Designation { get; set; } = "";
        public int FirstSize { get; set; }
        public int SecondSize { get; set; }
        public int ThirdSize { get; set; }
        public Point Position { get; set; }
        public int AuxSixth { get; set; }
        public int PositionZ { get; set; }
        public int Rotation { get; set; }
        public string ExtraDesignation { get; set; } = "";
        public bool Mounted { get; set; }
        public int AuxFirst { get; set; }
        public int AuxFourth { get; set; }
        public int AuxFifth { get; set; }
        /// <summary>Decimal: the hundreds tell welding points, the tens spacers and the bending kind.</summary>
        public int FlagsCode { get; set; }
    }

    /// <summary>
    /// A loose bar of the element. A straight bar takes the designation, sizes,
    /// position, rotation, kind and AuxSixth; a free-form bar takes everything.
    /// </summary>
    public sealed class Bar
    {
        public string Designation { get; set; } = "";
        public string ExtraDesignation { get; set; } = "";
        public int AuxFourth { get; set; }
        public int AuxFifth { get; set; }
        public int AuxSixth { get; set; }
        public int ThirdSize { get; set; }
        public Point Position { get; set; }
        public int PositionZ { get; set; }
        public ushort FirstSize { get; set; }
        public ushort SecondSize { get; set; }
        public short Rotation { get; set; }
        public ushort AuxFirst { get; set; }
        public byte RodKind { get; set; }
        public bool Mounted { get; set; } = true;
        /// <summary>2: the segments make the bar's free form; any other code leaves them unread.</summary>
        public byte BendingCode { get; set; }

        internal ItBarBlock ToBlock(int segmentCount, HostTexts texts)
        {
            return new ItBarBlock {
                extraDesignation = texts.Add(ExtraDesignation, "bar"),
                designation = texts.Add(Designation, "bar"),
                auxFourth = AuxFourth,
                auxFifth = AuxFifth,
                auxSixth = AuxSixth,
                thirdSize = ThirdSize,
                positionX = Position.X,
                positionY = Position.Y,
                positionZ = PositionZ,
                firstSize = FirstSize,
                secondSize = SecondSize,
                rotation = Rotation,
                auxFirst = AuxFirst,
                segmentCount = checked((ushort)segmentCount),
                rodKind = RodKind,
                notMounted = Mounted ? (byte)0 : (byte)1,
                bendingCode = BendingCode,
            };
        }
    }

    /// <summary>The texts of a block, as 16-bit text in memory of their own for the length of one call.</summary>
    internal sealed class HostTexts : IDisposable
    {
        private readonly List<IntPtr> texts = new List<IntPtr>();

        public IntPtr Add(string text, string parameter)
        {
            var pointer = Marshal.StringToHGlobalUni(Document.RequireText(text, parameter));
            texts.Add(pointer);
            return pointer;
        }

        public void Dispose()
        {
            foreach (var pointer in texts) {
                Marshal.FreeHGlobal(pointer);
            }
            texts.Clear();
        }
    }
}
