using System;
using System.Runtime.InteropServices;

namespace Tessaro
{
    /// <summary>An image record with its pixels, in one block of memory.</summary>
    public sealed class Image
    {
        private const int HeadSize = 16;

        /// <summary>A transparent black image.</summary>
        public Image(int width, int height)
        {
            if (width < 1 || width > 8191 || height < 1 || height > 32767 || 4L * width * height > int.MaxValue - HeadSize)
                throw new ArgumentException($"an image is 1..8191 pixels wide and 1..32767 high, not {width} x {height}: cut a larger one in parts");
            Memory = new byte[HeadSize + 4 * width * height];
            new short[] { 4, HeadSize, (short)width, (short)height, (short)(4 * width) }.CopyTo(MemoryMarshal.Cast<byte, short>(Memory));
        }

        /// <summary>The image whose record lies at an offset of memory of the host's.</summary>
        /// <exception cref="ArgumentException">The record is wrong about the memory.</exception>
        public Image(byte[] memory, int offset = 0)
        {
            Memory = memory;
            Offset = offset;
            Check.Image("memory", this);
        }

        /// <summary>The block that record and pixels lie in.</summary>
        public byte[] Memory { get; }

        /// <summary>Where the record lies.</summary>
        public int Offset { get; }

        /// <summary>Pixels in a row.</summary>
        public int Width => Check.Image("image", this).Width;

        /// <summary>Rows.</summary>
        public int Height => Check.Image("image", this).Height;

        /// <summary>The pixels 0xAARRGGBB of a row as bytes blue, green, red, alpha; changes show in the image.</summary>
        public Span<byte> Row(int y)
        {
            var record = Check.Image("image", this);
            if (y < 0 || y >= record.Height) throw new ArgumentOutOfRangeException(nameof(y));
            return Memory.AsSpan(record.First + record.Pitch * y, 4 * record.Width);
        }

        /// <summary>The pixel 0xAARRGGBB of a column and a row.</summary>
        public uint this[int x, int y]
        {
            get { return MemoryMarshal.Read<uint>(Row(y).Slice(4 * x)); }
            set { MemoryMarshal.Write(Row(y).Slice(4 * x), ref value); }
        }
    }

    /// <summary>A wave buffer: its format code, the number of its frames and their memory.</summary>
    public sealed class Sound
    {
        /// <summary>A buffer over memory of the host's; see <see cref="Functions.waveFormatEnc"/> for the format.</summary>
        public Sound(int format, int count, byte[] data)
        {
            Format = format;
            Count = count;
            Data = data;
        }

        /// <summary>The code of rate, sample width and channels.</summary>
        public int Format { get; }

        /// <summary>Frames.</summary>
        public int Count { get; }

        /// <summary>Frame 0 and those behind it.</summary>
        public byte[] Data { get; }
    }
}
