// A JSON object as Json.cs reads it: read-only, its keys in the order of the
// text, each key once.

using System;
using System.Collections;
using System.Collections.Generic;

namespace ItUnitechnik
{
    /// <summary>A JSON object: read-only, its keys in the order of the text.</summary>
    public sealed class JsonObject : IReadOnlyDictionary<string, object>
    {
        private readonly List<KeyValuePair<string, object>> members = new List<KeyValuePair<string, object>>();
        private readonly Dictionary<string, object> byKey = new Dictionary<string, object>(StringComparer.Ordinal);

        internal JsonObject()
        {
        }

        internal bool TryAdd(string key, object value)
        {
            if (byKey.ContainsKey(key)) {
                return false;
            }
            byKey.Add(key, value);
            members.Add(new KeyValuePair<string, object>(key, value));
            return true;
        }

        public object this[string key]
        {
            get {
                object value;
                if (!byKey.TryGetValue(key, out value)) {
                    throw new KeyNotFoundException("the JSON object has no \"" + key + "\"");
                }
                return value;
            }
        }

        public int Count { get { return members.Count; } }

        public IEnumerable<string> Keys
        {
            get {
                foreach (var member in members) {
                    yield return member.Key;
                }
            }
        }

        public IEnumerable<object> Values
        {
            get {
                foreach (var member in members) {
                    yield return member.Value;
                }
            }
        }

        public bool ContainsKey(string key)
        {
            return byKey.ContainsKey(key);
        }

        public bool TryGetValue(string key, out object value)
        {
            return byKey.TryGetValue(key, out value);
        }

        public IEnumerator<KeyValuePair<string, object>> GetEnumerator()
        {
            return members.GetEnumerator();
        }

        IEnumerator IEnumerable.GetEnumerator()
        {
            return GetEnumerator();
        }
    }
}
