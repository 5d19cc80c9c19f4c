// The values of the reading library's JSON (Json.cs) by their keys, for the
// classes of the read file.

using System;
using System.Collections.Generic;
using System.Collections.ObjectModel;

namespace ItUnitechnik
{
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
