// The .NET face of itunitechnik: a Document that starts orders, fills the
// current element and writes the file, with .NET names and types over the
// exports of NativeMethods.cs; the values it takes are in DocumentValues.cs.
//
// The library holds one document per process, so one Document may be open at
// a time; its first order drops whatever earlier Documents left behind.
// Arguments are checked before they reach the library, which trusts them.

using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;
using System.Threading;
using ItUnitechnik.Interop;

namespace ItUnitechnik
{
    /// <summary>
    /// The library's one document: orders, each with one slab element, and the
    /// file they make. Dispose it to let the next Document open.
    /// </summary>
    public sealed class Document : IDisposable
    {
        private const int MountingPartKind = 3;
        private const int BracedGirderKind = 5;
        private static int openDocuments;
        private bool disposed;
        private bool hasOrders;

        /// <summary>Opens the document; only one may be open at a time.</summary>
        public Document()
        {
            if (Interlocked.CompareExchange(ref openDocuments, 1, 0) != 0) {
                throw new InvalidOperationException("the library holds one document, and another is open");
            }
        }

        /// <summary>
        /// Starts an order of the given format version (such as 600) with its one
        /// slab element, which the calls after it fill. The first order of a
        /// Document drops the orders that were there before.
        /// </summary>
        public void StartOrder(ushort orderValue, int elementNumber, Placement placement, ushort version,
            string elementText, double elementMeasure)
        {
            CheckOpen();
            NativeMethods.startOrder(orderValue, elementNumber, placement.ToArray(), version,
                RequireText(elementText, "elementText"), elementMeasure, !hasOrders);
            hasOrders = true;
        }

        /// <summary>The texts, project, addresses and date of every order.</summary>
        public void SetProjectData(ProjectData data)
        {
            CheckOpen();
            if (data == null) {
                throw new ArgumentNullException("data");
            }
            NativeMethods.setProjectData(data.ToArray());
        }

        public void SetSlabInfo(string info1, string info2, string info3, string info4)
        {
            CheckOpen();
            NativeMethods.setSlabInfoFields(RequireText(info1, "info1"), RequireText(info2, "info2"),
                RequireText(info3, "info3"), RequireText(info4, "info4"));
        }

        /// <summary>Overwrites what the layers added up; call it after the last AddLayer.</summary>
        public void SetThicknesses(int thickness, int secondThickness)
        {
            CheckOpen();
            NativeMethods.setThicknesses(thickness, secondThickness);
        }

        public void SetDoubleWallGap(int gap)
        {
            CheckOpen();
            NativeMethods.setDoubleWallGap(gap);
        }

        /// <summary>A concrete layer; its thickness in metres goes to the file in millimetres.</summary>
        public void AddLayer(ushort kind, double thicknessMetres, double firstFactor, double secondFactor,
            string name)
        {
            CheckOpen();
            NativeMethods.addLayer(kind, thicknessMetres, firstFactor, secondFactor, RequireText(name, "name"));
        }

        /// <summary>An outline of straight pieces from each point to the next; repeat the first point to close it.</summary>
        public void AddContour(IList<Point> points)
        {
            CheckOpen();
            NativeMethods.addContour(RequirePoints(points, "points", int.MaxValue).Count, Flatten(points));
        }

        /// <summary>An opening: its name, value and outline (at most 65535 points).</summary>
        public void AddCutout(string name, double value, IList<Point> points)
        {
            CheckOpen();
            var count = (ushort)RequirePoints(points, "points", ushort.MaxValue).Count;
            using (var texts = new HostTexts()) {
                var block = new ItCutoutBlock {
                    cutoutName = texts.Add(name, "name"), cutoutValue = value, pointCount = count };
                NativeMethods.addCutout(ref block, Flatten(points));
            }
        }

        /// <summary>A mounted part with two values of its own and an outline of straight pieces.</summary>
        public bool AddMountingPart(string name, int value1, int value2, IList<Piece> pieces)
        {
            CheckOpen();
            if (pieces == null) {
                throw new ArgumentNullException("pieces");
            }
            var values = new List<int> { value1, value2 };
            foreach (var piece in pieces) {
                values.AddRange(new[] { piece.Start.X, piece.Start.Y, piece.End.X, piece.End.Y });
            }
            return AddSetOf(MountingPartKind, name, values);
        }

        /// <summary>Braced girders, all of one designation, numbered on from the element's last.</summary>
        public bool AddBracedGirders(string designation, IList<BracedGirder> girders)
        {
            CheckOpen();
            if (girders == null) {
                throw new ArgumentNullException("girders");
            }
            var values = new List<int>();
            foreach (var girder in girders) {
                if (girder == null) {
                    throw new ArgumentNullException("girders");
                }
                girder.AppendTo(values);
            }
            return AddSetOf(BracedGirderKind, designation, values);
        }

        /// <summary>A mat; the bars of AddMatBar join the mat added last. Returns the mat's number.</summary>
        public int AddSteelmat(string name, int firstDimension, int secondDimension, bool firstFlag,
            bool secondFlag, int matKind, int positionX, int positionY, int positionZ)
        {
            CheckOpen();
            return NativeMethods.addSteelmat(RequireText(name, "name"), firstDimension, secondDimension,
                firstFlag ? 1 : 0, secondFlag ? 1 : 0, matKind, new[] { positionX, positionY, positionZ });
        }

        /// <summary>A bar of the mat added last: its number in the mat, or -1 when there is no mat to take it.</summary>
        public int AddMatBar(MatBar bar)
        {
            CheckOpen();
            if (bar == null) {
                throw new ArgumentNullException("bar");
            }
            return NativeMethods.addCFSRodstock(bar.RodKind, RequireText(bar.Designation, "bar"), bar.FirstSize,
                bar.SecondSize, bar.ThirdSize, new[] { bar.Position.X, bar.Position.Y, bar.AuxSixth },
                bar.PositionZ, bar.Rotation, RequireText(bar.ExtraDesignation, "bar"), bar.Mounted ? 1 : 0,
                bar.AuxFirst, bar.AuxFourth, bar.AuxFifth, bar.FlagsCode);
        }

        /// <summary>A loose straight bar of the element.</summary>
        public void AddStraightBar(Bar bar)
        {
            CheckOpen();
            if (bar == null) {
                throw new ArgumentNullException("bar");
            }
            using (var texts = new HostTexts()) {
                var block = bar.ToBlock(0, texts);
                NativeMethods.addStraightRodstock(ref block);
            }
        }

        /// <summary>A loose bar of free form: with BendingCode 2 its segments, six to a line.</summary>
        public void AddFreeFormBar(Bar bar, IList<FreeFormSegment> segments)
        {
            CheckOpen();
            if (bar == null) {
                throw new ArgumentNullException("bar");
            }
            if (segments == null) {
                throw new ArgumentNullException("segments");
            }
            if (segments.Count > ushort.MaxValue) {
                throw new ArgumentException("more than 65535 segments", "segments");
            }
            var entries = new ItFreeFormSegment[segments.Count];
            for (int i = 0; i < entries.Length; ++i) {
                entries[i] = new ItFreeFormSegment { length = segments[i].Length, angle = segments[i].Angle };
            }
            using (var texts = new HostTexts()) {
                var block = bar.ToBlock(entries.Length, texts);
                NativeMethods.addFreeFormRodstock(ref block, entries);
            }
        }

        /// <summary>An external iron. Returns its number.</summary>
        public int AddExternalIron(int code, int count, double value, string text)
        {
            CheckOpen();
            return NativeMethods.addExtIron(code, count, value, RequireText(text, "text"));
        }

        /// <summary>
        /// Writes every order to the file at path (CR LF line ends, one byte per
        /// character). The library reports false only for a stream that is
        /// unhealthy from the start: a file it could not create is not reported.
        /// </summary>
        public bool Write(string path)
        {
            CheckOpen();
            return NativeMethods.endDocument(RequireText(path, "path")) == 1;
        }

        /// <summary>
        /// The current element's mounted parts, loose bars, girders, mats and
        /// irons in the text of their records, each line ended by a line feed;
        /// empty with no element, or "ERROR ..." when a record could not be written.
        /// </summary>
        public string ReinforcementSummary()
        {
            CheckOpen();
            IntPtr text = NativeMethods.getFullReinforcementString();
            try {
                return text == IntPtr.Zero ? "" : Marshal.PtrToStringUni(text);
            } finally {
                NativeMethods.freeFullReinforcementString(text);
            }
        }

        public void Dispose()
        {
            if (!disposed) {
                disposed = true;
                Interlocked.Exchange(ref openDocuments, 0);
            }
        }

        internal static string RequireText(string text, string parameter)
        {
            if (text == null) {
                throw new ArgumentNullException(parameter);
            }
            if (text.IndexOf('\0') >= 0) {
                throw new ArgumentException("a text holds a NUL character", parameter);
            }
            return text;
        }

        private static IList<Point> RequirePoints(IList<Point> points, string parameter, int most)
        {
            if (points == null) {
                throw new ArgumentNullException(parameter);
            }
            // One point or none make an outline of no pieces, as the library
            // adds it; the count must fit the export's.
            if (points.Count > most) {
                throw new ArgumentException("an outline takes at most " + most + " points", parameter);
            }
            return points;
        }

        private static int[] Flatten(IList<Point> points)
        {
            // Never an empty array: the export is given a pointer even when it reads none.
            var values = new int[Math.Max(points.Count * 2, 1)];
            for (int i = 0; i < points.Count; ++i) {
                values[2 * i] = points[i].X;
                values[2 * i + 1] = points[i].Y;
            }
            return values;
        }

        private static bool AddSetOf(int kind, string name, List<int> values)
        {
            return NativeMethods.addSet(kind, RequireText(name, "name"), values.Count, values.ToArray()) == 1;
        }

        private void CheckOpen()
        {
            if (disposed) {
                throw new ObjectDisposedException("Document");
            }
        }
    }
}
