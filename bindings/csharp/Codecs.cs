// Made by bindings/csharp/generate.py from the description of the functions. Do not edit.
using System;

namespace Tessaro
{
    /// <summary>Lossless stream formats.</summary>
    public enum Codec
    {
        /// <summary>Codes pairs of bytes, each against the pair before.</summary>
        I,
        /// <summary>Codes pixels that repeat the one before.</summary>
        Io,
        /// <summary>Codes blocks of six bytes that repeat the byte before, or are the one that most often follows it in this source, or are sent.</summary>
        Ib18,
        /// <summary>Codes as <c>ib18Encoder</c> does, one channel of 32-bit pixels after another.</summary>
        Ib18Ex,
        /// <summary>Codes groups of 4, 8, 16, ...</summary>
        Iabr,
        /// <summary>Codes groups of <c>4 * 2^k</c> bytes that agree in their top bits, in a few bits each, with an escape for those that do not fit.</summary>
        Inabe,
        /// <summary>Codes pixels against the pixel before, in two pairs of channels: blue and red, green and alpha.</summary>
        Imist,
        /// <summary>Codes blocks of eight bytes, each byte whole or as the bits in which it differs from a byte one to eight places back.</summary>
        Inda,
        /// <summary>Codes pixels against the pixel before, each byte whole or cut to its low 3 or 5 bits.</summary>
        Ica,
        /// <summary>Codes pixels whose channels stay constant, in blocks of eight pixels.</summary>
        C2f,
    }

    public static partial class Streams
    {
        private static int Encode(Codec codec, ReadOnlySpan<byte> source, Span<byte> room, ref uint written)
        {
            switch (codec)
            {
                case Codec.I: return Functions.iEncoder(source, room, (uint)source.Length, ref written);
                case Codec.Io: return Functions.ioEncoder(source, room, (uint)source.Length, ref written);
                case Codec.Ib18: return Functions.ib18Encoder(source, room, (uint)source.Length, ref written);
                case Codec.Ib18Ex: return Functions.ib18EncoderEx(source, room, (uint)source.Length, ref written);
                case Codec.Iabr: return Functions.iabrEncoder(source, room, (uint)source.Length, ref written);
                case Codec.Inabe: return Functions.inabeEncoder(source, room, (uint)source.Length, ref written);
                case Codec.Imist: return Functions.imistEncoder(source, room, (uint)source.Length, ref written);
                case Codec.Inda: return Functions.indaEncoder(source, room, (uint)source.Length, ref written);
                case Codec.Ica: return Functions.icaEncoder(source, room, (uint)source.Length, ref written);
                case Codec.C2f: return Functions.c2fEncoder(source, room, (uint)source.Length, ref written);
                default: throw new ArgumentOutOfRangeException(nameof(codec));
            }
        }

        private static int Decode(Codec codec, ReadOnlySpan<byte> stream, Span<byte> made)
        {
            switch (codec)
            {
                case Codec.I: return Functions.iDecoderSafe(stream, made, (uint)stream.Length, (uint)made.Length);
                case Codec.Io: return Functions.ioDecoderSafe(stream, made, (uint)stream.Length, (uint)made.Length);
                case Codec.Ib18: return Functions.ib18DecoderSafe(stream, made, (uint)stream.Length, (uint)made.Length);
                case Codec.Ib18Ex: return Functions.ib18DecoderExSafe(stream, made, (uint)stream.Length, (uint)made.Length);
                case Codec.Iabr: return Functions.iabrDecoderSafe(stream, made, (uint)stream.Length, (uint)made.Length);
                case Codec.Inabe: return Functions.inabeDecoderSafe(stream, made, (uint)stream.Length, (uint)made.Length);
                case Codec.Imist: return Functions.imistDecoderSafe(stream, made, (uint)stream.Length, (uint)made.Length);
                case Codec.Inda: return Functions.indaDecoderSafe(stream, made, (uint)stream.Length, (uint)made.Length);
                case Codec.Ica: return Functions.icaDecoderSafe(stream, made, (uint)stream.Length, (uint)made.Length);
                case Codec.C2f: return Functions.c2fDecoder(stream, made, (uint)stream.Length, (uint)made.Length);
                default: throw new ArgumentOutOfRangeException(nameof(codec));
            }
        }
    }
}
