using System;
using System.IO;

namespace Tessaro
{
    /// <summary>Compresses and gives back bytes by the stream formats.</summary>
    public static partial class Streams
    {
        /// <summary>The stream of a format, or null where it would not get smaller.</summary>
        public static byte[] Encode(Codec codec, ReadOnlySpan<byte> source)
        {
            var room = new byte[source.Length + source.Length / 32 + 64];
            uint written = 0;
            return Encode(codec, source, room, ref written) == 0 ? room.AsSpan(0, (int)written).ToArray() : null;
        }

        /// <summary>The bytes that a stream was made from.</summary>
        /// <exception cref="InvalidDataException">The stream is damaged.</exception>
        public static byte[] Decode(Codec codec, ReadOnlySpan<byte> stream, int length)
        {
            var made = new byte[length];
            if (Decode(codec, stream, made) != 0) throw new InvalidDataException($"the stream of {codec} is damaged");
            return made;
        }
    }
}
