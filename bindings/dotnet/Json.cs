// A small, strict JSON reader for what the reading library gives back, with
// nothing beyond the core class library. A value reads as:
//   object        JsonObject (its keys in the order of the text)
//   array         IReadOnlyList<object>
//   string        string
//   number        long when it is a whole number without fraction or
//                 exponent that fits, else double
//   true / false  bool
//   null          null
// Anything JSON does not allow is a FormatException: bytes that are not
// UTF-8, a control character or an unknown escape in a string, a lone
// surrogate, a leading zero, a repeated key, text after the value.

using System;
using System.Collections.Generic;
using System.Collections.ObjectModel;
using System.Globalization;
using System.Text;

namespace ItUnitechnik
{
    /// <summary>Reads JSON text into the values listed at the top of Json.cs.</summary>
    public static class Json
    {
        private const int MaximumDepth = 512;

        /// <summary>Reads UTF-8 JSON; a byte order mark is not allowed.</summary>
        public static object Parse(byte[] utf8)
        {
            if (utf8 == null) {
                throw new ArgumentNullException("utf8");
            }
            string text;
            try {
                text = new UTF8Encoding(false, true).GetString(utf8);
            } catch (DecoderFallbackException e) {
                throw new FormatException("the JSON text is not UTF-8", e);
            }
            return Parse(text);
        }

        public static object Parse(string text)
        {
            if (text == null) {
                throw new ArgumentNullException("text");
            }
            var reader = new Reader(text);
            reader.SkipSpace();
            object value = reader.Value(0);
            reader.SkipSpace();
            if (!reader.AtEnd) {
                throw reader.Error("text after the value");
            }
            return value;
        }

        /// <summary>
        /// Whether two read values are the same JSON: objects with the same
        /// keys (in any order) and equal values, arrays element by element,
        /// numbers of the same kind and value, equal strings and booleans.
        /// </summary>
        public static bool Same(object a, object b)
        {
            if (a == null || b == null) {
                return a == null && b == null;
            }
            var objectA = a as JsonObject;
            if (objectA != null) {
                var objectB = b as JsonObject;
                if (objectB == null || objectA.Count != objectB.Count) {
                    return false;
                }
                foreach (var member in objectA) {
                    object other;
                    if (!objectB.TryGetValue(member.Key, out other) || !Same(member.Value, other)) {
                        return false;
                    }
                }
                return true;
            }
            var listA = a as IReadOnlyList<object>;
            if (listA != null) {
                var listB = b as IReadOnlyList<object>;
                if (listB == null || listA.Count != listB.Count) {
                    return false;
                }
                for (int i = 0; i < listA.Count; ++i) {
                    if (!Same(listA[i], listB[i])) {
                        return false;
                    }
                }
                return true;
            }
            return a.GetType() == b.GetType() && a.Equals(b);
        }

        private sealed class Reader
        {
            private readonly string text;
            private int at;

            public Reader(string text)
            {
                this.text = text;
            }

            public bool AtEnd { get { return at == text.Length; } }

            public FormatException Error(string what)
            {
                return new FormatException(string.Format(CultureInfo.InvariantCulture,
                    "not JSON at character {0}: {1}", at, what));
            }

            public void SkipSpace()
            {
                while (at < text.Length) {
                    char c = text[at];
                    if (c != ' ' && c != '\t' && c != '\n' && c != '\r') {
                        return;
                    }
                    ++at;
                }
            }

            public object Value(int depth)
            {
                if (depth > MaximumDepth) {
                    throw Error("values nested deeper than " + MaximumDepth);
                }
                if (AtEnd) {
                    throw Error("the text ends where a value should be");
                }
                char c = text[at];
                switch (c) {
                case '{':
                    return Object(depth);
                case '[':
                    return Array(depth);
                case '"':
                    return String();
                case 't':
                    Word("true");
                    return true;
                case 'f':
                    Word("false");
                    return false;
                case 'n':
                    Word("null");
                    return null;
                default:
                    if (c == '-' || (c >= '0' && c <= '9')) {
                        return Number();
                    }
                    throw Error("'" + c + "' cannot start a value");
                }
            }

            private void Word(string word)
            {
                if (string.CompareOrdinal(text, at, word, 0, word.Length) != 0) {
                    throw Error("expected " + word);
                }
                at += word.Length;
            }

            private void Expect(char c)
            {
                if (AtEnd || text[at] != c) {
                    throw Error("expected '" + c + "'");
                }
                ++at;
            }

            private JsonObject Object(int depth)
            {
                var result = new JsonObject();
                Expect('{');
                SkipSpace();
                if (!AtEnd && text[at] == '}') {
                    ++at;
                    return result;
                }
                while (true) {
                    SkipSpace();
                    if (AtEnd || text[at] != '"') {
                        throw Error("expected a key");
                    }
                    string key = String();
                    SkipSpace();
                    Expect(':');
                    SkipSpace();
                    if (!result.TryAdd(key, Value(depth + 1))) {
                        throw Error("the key \"" + key + "\" twice");
                    }
                    SkipSpace();
                    if (!AtEnd && text[at] == ',') {
                        ++at;
                        continue;
                    }
                    Expect('}');
                    return result;
                }
            }

            private IReadOnlyList<object> Array(int depth)
            {
                var result = new List<object>();
                Expect('[');
                SkipSpace();
                if (!AtEnd && text[at] == ']') {
                    ++at;
                    return new ReadOnlyCollection<object>(result);
                }
                while (true) {
                    SkipSpace();
                    result.Add(Value(depth + 1));
                    SkipSpace();
                    if (!AtEnd && text[at] == ',') {
                        ++at;
                        continue;
                    }
                    Expect(']');
                    return new ReadOnlyCollection<object>(result);
                }
            }

            private string String()
            {
                Expect('"');
                var result = new StringBuilder();
                while (true) {
                    if (AtEnd) {
                        throw Error("the text ends inside a string");
                    }
                    char c = text[at++];
                    if (c == '"') {
                        return result.ToString();
                    }
                    if (c < 0x20) {
                        throw Error("a control character inside a string");
                    }
                    if (char.IsHighSurrogate(c)) {
                        if (AtEnd || !char.IsLowSurrogate(text[at])) {
                            throw Error("a lone surrogate");
                        }
                        result.Append(c).Append(text[at++]);
                        continue;
                    }
                    if (char.IsLowSurrogate(c)) {
                        throw Error("a lone surrogate");
                    }
                    if (c != '\\') {
                        result.Append(c);
                        continue;
                    }
                    if (AtEnd) {
                        throw Error("the text ends inside an escape");
                    }
                    char e = text[at++];
                    switch (e) {
                    case '"': result.Append('"'); break;
                    case '\\': result.Append('\\'); break;
                    case '/': result.Append('/'); break;
                    case 'b': result.Append('\b'); break;
                    case 'f': result.Append('\f'); break;
                    case 'n': result.Append('\n'); break;
                    case 'r': result.Append('\r'); break;
                    case 't': result.Append('\t'); break;
                    case 'u': {
                        char unit = Hex4();
                        if (char.IsHighSurrogate(unit)) {
                            if (at + 1 >= text.Length || text[at] != '\\' || text[at + 1] != 'u') {
                                throw Error("a high surrogate without its low one");
                            }
                            at += 2;
                            char low = Hex4();
                            if (!char.IsLowSurrogate(low)) {
                                throw Error("a high surrogate without its low one");
                            }
                            result.Append(unit).Append(low);
                        } else if (char.IsLowSurrogate(unit)) {
                            throw Error("a low surrogate without its high one");
                        } else {
                            result.Append(unit);
                        }
                        break;
                    }
                    default:
                        throw Error("the escape \\" + e);
                    }
                }
            }

            private char Hex4()
            {
                if (at + 4 > text.Length) {
                    throw Error("the text ends inside \\u");
                }
                int unit = 0;
                for (int i = 0; i < 4; ++i) {
                    char h = text[at++];
                    int digit;
                    if (h >= '0' && h <= '9') {
                        digit = h - '0';
                    } else if (h >= 'a' && h <= 'f') {
                        digit = h - 'a' + 10;
                    } else if (h >= 'A' && h <= 'F') {
                        digit = h - 'A' + 10;
                    } else {
                        throw Error("'" + h + "' in \\u");
                    }
                    unit = unit * 16 + digit;
                }
                return (char)unit;
            }

            private int Digits()
            {
                int start = at;
                while (at < text.Length && text[at] >= '0' && text[at] <= '9') {
                    ++at;
                }
                return at - start;
            }

            private object Number()
            {
                int start = at;
                bool whole = true;
                if (text[at] == '-') {
                    ++at;
                }
                if (AtEnd || text[at] < '0' || text[at] > '9') {
                    throw Error("a number without digits");
                }
                if (text[at] == '0') {
                    ++at;
                    if (!AtEnd && text[at] >= '0' && text[at] <= '9') {
                        throw Error("a number with a leading zero");
                    }
                } else {
                    Digits();
                }
                if (!AtEnd && text[at] == '.') {
                    ++at;
                    whole = false;
                    if (Digits() == 0) {
                        throw Error("a number without digits after its point");
                    }
                }
                if (!AtEnd && (text[at] == 'e' || text[at] == 'E')) {
                    ++at;
                    whole = false;
                    if (!AtEnd && (text[at] == '+' || text[at] == '-')) {
                        ++at;
                    }
                    if (Digits() == 0) {
                        throw Error("a number without digits in its exponent");
                    }
                }
                string number = text.Substring(start, at - start);
                long integer;
                if (whole && long.TryParse(number, NumberStyles.AllowLeadingSign, CultureInfo.InvariantCulture,
                        out integer)) {
                    return integer;
                }
                double real;
                if (!double.TryParse(number, NumberStyles.Float, CultureInfo.InvariantCulture, out real)
                    || double.IsInfinity(real)) {
                    throw Error("the number " + number + " is out of range");
                }
                return real;
            }
        }
    }
}
