// The C interface of itunitechnik as .NET sees it: every export of
// itunitechnik.h with its C types, and the three blocks laid out byte for
// byte as the header lays them out. Texts are 16-bit (CharSet.Unicode); the
// one bool of startOrder is one byte. The library trusts counts and pointers:
// arrays must hold what the header says (9 doubles of placement, 3 integers
// of a position, 19 texts, two integers per point), and no text may be null.
// The texts inside the blocks are pointers: the blocks keep the header's
// explicit offsets, and a string field in a block of explicit layout is not
// marshalled as 16-bit text by every runtime (Mono's is not). Fill them with
// Marshal.StringToHGlobalUni and free them with Marshal.FreeHGlobal after the
// call; the library copies what it keeps.
// The library is "itunitechnik": itunitechnik.dll on Windows,
// libitunitechnik.so elsewhere.
//
// Document (Document.cs) is the way in for most hosts; these declarations are
// for a host that wants the exports as they are.

using System;
using System.Runtime.InteropServices;

namespace ItUnitechnik.Interop
{
    /// <summary>The block of addCutout: the opening's name, value and count of points.</summary>
    [StructLayout(LayoutKind.Explicit, Size = 24)]
    public struct ItCutoutBlock
    {
        [FieldOffset(0)] public IntPtr cutoutName; // zero-terminated 16-bit text
        [FieldOffset(8)] public double cutoutValue;
        [FieldOffset(16)] public ushort pointCount;
    }

    /// <summary>
    /// The bar block of addStraightRodstock and addFreeFormRodstock. The cells
    /// marked free-form are read by addFreeFormRodstock alone; the bytes at 52,
    /// 58, 59 and 61 to 63 are never read.
    /// </summary>
    [StructLayout(LayoutKind.Explicit, Size = 64)]
    public struct ItBarBlock
    {
        [FieldOffset(0)] public IntPtr extraDesignation; // free-form; zero-terminated 16-bit text
        [FieldOffset(8)] public IntPtr designation;      // zero-terminated 16-bit text
        [FieldOffset(16)] public int auxFourth;  // free-form
        [FieldOffset(20)] public int auxFifth;   // free-form
        [FieldOffset(24)] public int auxSixth;
        [FieldOffset(28)] public int thirdSize;
        [FieldOffset(32)] public int positionX;
        [FieldOffset(36)] public int positionY;
        [FieldOffset(40)] public int positionZ;
        [FieldOffset(44)] public ushort firstSize;
        [FieldOffset(46)] public ushort secondSize;
        [FieldOffset(48)] public short rotation;
        [FieldOffset(50)] public ushort auxFirst;     // free-form
        [FieldOffset(54)] public ushort segmentCount; // free-form: entries behind the second argument
        [FieldOffset(56)] public byte rodKind;
        [FieldOffset(57)] public byte notMounted;     // free-form: 0 means mounted
        [FieldOffset(60)] public byte bendingCode;    // free-form
    }

    /// <summary>One segment entry of the second argument of addFreeFormRodstock.</summary>
    [StructLayout(LayoutKind.Explicit, Size = 8)]
    public struct ItFreeFormSegment
    {
        [FieldOffset(0)] public int length;
        [FieldOffset(4)] public short angle;
    }

    /// <summary>The 17 exports of itunitechnik.h, with their C names and types.</summary>
    public static class NativeMethods
    {
        /// <summary>itunitechnik.dll on Windows, libitunitechnik.so elsewhere.</summary>
        public const string LibraryName = "itunitechnik";

        /// <summary>setProjectData takes exactly this many texts.</summary>
        public const int ProjectTextCount = 19;

        private const CallingConvention Convention = CallingConvention.Cdecl;

        // Orders and the document.

        [DllImport(LibraryName, CallingConvention = Convention, CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int startOrder(ushort orderValue, int elementNumberArg,
            [In] double[] placement /* 9 */, ushort version,
            string elementTextArg, double elementMeasureArg, [MarshalAs(UnmanagedType.U1)] bool clearDocument);

        [DllImport(LibraryName, CallingConvention = Convention, CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int endDocument(string path);

        // Project and element setters.

        [DllImport(LibraryName, CallingConvention = Convention, CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern void setProjectData(
            [In, MarshalAs(UnmanagedType.LPArray, ArraySubType = UnmanagedType.LPWStr)]
            string[] texts /* ProjectTextCount */);

        [DllImport(LibraryName, CallingConvention = Convention, CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern void setSlabInfoFields(string slabInfo1, string slabInfo2, string slabInfo3,
            string slabInfo4);

        [DllImport(LibraryName, CallingConvention = Convention, ExactSpelling = true)]
        public static extern void setThicknesses(int thickness, int secondThickness);

        [DllImport(LibraryName, CallingConvention = Convention, ExactSpelling = true)]
        public static extern void setDoubleWallGap(int doubleWallGap);

        [DllImport(LibraryName, CallingConvention = Convention, CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern void addLayer(ushort layerKind, double thicknessMetres, double firstFactor,
            double secondFactor, string layerName);

        // Outline adders.

        [DllImport(LibraryName, CallingConvention = Convention, ExactSpelling = true)]
        public static extern void addContour(int pointCount, [In] int[] points);

        [DllImport(LibraryName, CallingConvention = Convention, ExactSpelling = true)]
        public static extern void addCutout([In] ref ItCutoutBlock block, [In] int[] points);

        [DllImport(LibraryName, CallingConvention = Convention, CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int addSet(int setKind, string setName, int valueCount, [In] int[] values);

        // Reinforcement adders.

        [DllImport(LibraryName, CallingConvention = Convention, CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int addSteelmat(string name, int firstDimension, int secondDimension, int firstFlag,
            int secondFlag, int matKind, [In] int[] position /* 3 */);

        [DllImport(LibraryName, CallingConvention = Convention, CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int addCFSRodstock(int rodKind, string designation, int firstSize, int secondSize,
            int thirdSize, [In] int[] position /* 3 */, int positionZ,
            int rotation, string extraDesignation, int mountFlag, int auxFirst, int auxFourth, int auxFifth,
            int flagsCode);

        [DllImport(LibraryName, CallingConvention = Convention, ExactSpelling = true)]
        public static extern void addStraightRodstock([In] ref ItBarBlock bar);

        [DllImport(LibraryName, CallingConvention = Convention, ExactSpelling = true)]
        public static extern void addFreeFormRodstock([In] ref ItBarBlock bar, [In] ItFreeFormSegment[] segments);

        [DllImport(LibraryName, CallingConvention = Convention, CharSet = CharSet.Unicode, ExactSpelling = true)]
        public static extern int addExtIron(int ironCode, int ironCount, double ironValue, string ironText);

        // The reinforcement summary string. The result is read with
        // Marshal.PtrToStringUni and always given back through
        // freeFullReinforcementString, whatever its kind.

        [DllImport(LibraryName, CallingConvention = Convention, ExactSpelling = true)]
        public static extern IntPtr getFullReinforcementString();

        [DllImport(LibraryName, CallingConvention = Convention, ExactSpelling = true)]
        public static extern void freeFullReinforcementString(IntPtr text);
    }
}
