// The C interface of the reading library, itunitechnik_reading.h, as .NET
// sees it: its six calls with their C types. A result is a pointer that the
// host hands back to itrFree; the JSON that itrJson gives belongs to the
// result. Texts are UTF-8: a path goes in as zero-terminated UTF-8 bytes,
// and the JSON comes out as zero-terminated UTF-8 (ReadingNativeMethods.Utf8
// reads it).
// The library is "itunitechnik_reading": itunitechnik_reading.dll on Windows,
// libitunitechnik_reading.so elsewhere.
//
// UnitechnikFile (UnitechnikFile.cs) is the way in for most hosts.

using System;
using System.Runtime.InteropServices;
using System.Text;

namespace ItUnitechnik.Interop
{
    /// <summary>The calls of itunitechnik_reading.h, with their C names and types.</summary>
    public static class ReadingNativeMethods
    {
        /// <summary>itunitechnik_reading.dll on Windows, libitunitechnik_reading.so elsewhere.</summary>
        public const string LibraryName = "itunitechnik_reading";

        /// <summary>The bits of the parts argument: ITR_RECORDS, ITR_PLANT, ITR_BOM, ITR_ALL.</summary>
        public const int Records = 1;
        public const int Plant = 2;
        public const int Bom = 4;
        public const int All = 7;

        private const CallingConvention Convention = CallingConvention.Cdecl;

        /// <summary>pathUtf8: the path's UTF-8 bytes and a terminating zero.</summary>
        [DllImport(LibraryName, CallingConvention = Convention, ExactSpelling = true)]
        public static extern IntPtr itrReadFile([In] byte[] pathUtf8, int parts);

        [DllImport(LibraryName, CallingConvention = Convention, ExactSpelling = true)]
        public static extern IntPtr itrReadBytes([In] byte[] bytes, UIntPtr size, int parts);

        [DllImport(LibraryName, CallingConvention = Convention, ExactSpelling = true)]
        public static extern int itrOk(IntPtr result);

        /// <summary>Zero-terminated UTF-8 owned by the result.</summary>
        [DllImport(LibraryName, CallingConvention = Convention, ExactSpelling = true)]
        public static extern IntPtr itrJson(IntPtr result);

        [DllImport(LibraryName, CallingConvention = Convention, ExactSpelling = true)]
        public static extern void itrFree(IntPtr result);

        /// <summary>Zero-terminated UTF-8, static: never freed.</summary>
        [DllImport(LibraryName, CallingConvention = Convention, ExactSpelling = true)]
        public static extern IntPtr itrPlantMeanings();

        /// <summary>The bytes of a zero-terminated text, without the zero; none for a null pointer.</summary>
        public static byte[] Utf8(IntPtr text)
        {
            if (text == IntPtr.Zero) {
                return new byte[0];
            }
            int length = 0;
            while (Marshal.ReadByte(text, length) != 0) {
                ++length;
            }
            var bytes = new byte[length];
            Marshal.Copy(text, bytes, 0, length);
            return bytes;
        }

        /// <summary>A text as itrReadFile takes it: UTF-8 and a terminating zero.</summary>
        public static byte[] ZeroTerminated(string text)
        {
            var bytes = new byte[Encoding.UTF8.GetByteCount(text) + 1];
            Encoding.UTF8.GetBytes(text, 0, text.Length, bytes, 0);
            return bytes;
        }

        /// <summary>A whole result's JSON, read and handed back: the JSON's UTF-8 bytes.</summary>
        public static byte[] TakeJson(IntPtr result)
        {
            if (result == IntPtr.Zero) {
                throw new OutOfMemoryException("the reading library ran out of memory");
            }
            try {
                return Utf8(itrJson(result));
            } finally {
                itrFree(result);
            }
        }
    }
}
