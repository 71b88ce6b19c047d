using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;

namespace Tessaro
{
    [StructLayout(LayoutKind.Sequential)]
    internal struct WaveBuffer
    {
        internal int Format, Count;
        internal IntPtr Data;
    }

    internal struct Record
    {
        internal int Width, Height, Pitch, First;
    }

    // What every argument goes through on its way to the library: no call reads or writes outside the memory it is given.
    internal static class Check
    {
        private static readonly List<Delegate> lasting = new List<Delegate>();

        internal static long CeilDiv(long a, long b) => (a + b - 1) / b;

        internal static long BytesOf(long format)
        {
            switch (format)
            {
                case 8888: return 4;
                case 888: return 3;
                case 565: case 555: case 1555: case 4444: return 2;
                default: return 0;
            }
        }

        internal static void Memory(string name, long given, long size)
        {
            if (given < size) throw new ArgumentException($"{size} bytes are needed, {given} given", name);
        }

        // Where memory begins, seen from the pointer.
        internal static long Begin(int given, long begin) => given == 0 ? 0 : begin;

        internal static void Within(string name, long value, long low, long high)
        {
            if (value < low || value > high) throw new ArgumentOutOfRangeException(name);
        }

        internal static void Word(string name, int given, int index, int width)
        {
            if (index < 0 || (index + 1L) * width > given)
                throw new ArgumentException($"word {index} lies outside of {given} bytes", name);
        }

        // Text that ends with a zero: a short one gets it here.
        internal static ReadOnlySpan<byte> Text(ReadOnlySpan<byte> text, int size)
        {
            if (text.Length >= size || text.IndexOf((byte)0) >= 0) return text;
            var ended = new byte[size];
            text.CopyTo(ended);
            return ended;
        }

        // The record is looked at with each call, since it lies in the host's memory.
        internal static Record Image(string name, Image image)
        {
            if (image == null || image.Memory == null) throw new ArgumentNullException(name);
            byte[] memory = image.Memory;
            int at = image.Offset;
            Inside(name, memory, "the record", at, 4);
            int dims = at + BitConverter.ToInt16(memory, at);
            Inside(name, memory, "the dimensions", dims, 6);
            var record = new Record
            {
                Width = BitConverter.ToInt16(memory, dims),
                Height = BitConverter.ToInt16(memory, dims + 2),
                Pitch = BitConverter.ToInt16(memory, dims + 4),
                First = at + BitConverter.ToInt16(memory, at + 2),
            };
            if (record.Width > 0 && record.Height > 0)
            {
                long low = record.First + Math.Min(0L, record.Pitch * (record.Height - 1L));
                long size = Math.Abs((long)record.Pitch) * (record.Height - 1) + 4 * record.Width;
                Inside(name, memory, "the pixels", low, size);
                if ((at < low + size && at + 4 > low) || (dims < low + size && dims + 6 > low))
                    throw new ArgumentException("the image record lies: its pixels would cover it", name);
            }
            return record;
        }

        private static void Inside(string name, byte[] memory, string what, long start, long size)
        {
            if (start < 0 || start + size > memory.Length)
                throw new ArgumentException(
                    $"the image record lies: {what} would be bytes {start}..{start + size - 1} of a memory of {memory.Length} bytes", name);
        }

        internal static void Sound(string name, Sound sound, long least)
        {
            if (sound == null || sound.Data == null) throw new ArgumentNullException(name);
            int bits = sound.Format & 0xF8, channels = sound.Format & 7;
            bool known = (bits == 8 || bits == 16 || bits == 24 || bits == 64) && (channels == 1 || channels == 2);
            long size = Math.Max(known ? Math.Max(sound.Count, 0L) * (bits / 8) * channels : 0, least);
            Memory(name, sound.Data.Length, size);
        }

        // A function that the library calls after this call.
        internal static void Keep(Delegate function)
        {
            lock (lasting) lasting.Add(function);
        }
    }
}
