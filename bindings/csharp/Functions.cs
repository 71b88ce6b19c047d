// Made by bindings/csharp/generate.py from the description of the functions. Do not edit.
using System;
using System.Runtime.InteropServices;

namespace Tessaro
{
    /// <summary>A host's function of one argument; on 32-bit Windows the caller removes it.</summary>
    [UnmanagedFunctionPointer(CallingConvention.Cdecl)]
    public delegate IntPtr TessaroMethod1(IntPtr a);

    /// <summary>A host's function of four arguments; on 32-bit Windows the caller removes them.</summary>
    [UnmanagedFunctionPointer(CallingConvention.Cdecl)]
    public delegate IntPtr TessaroMethod4(IntPtr a, IntPtr b, IntPtr c, IntPtr d);

    /// <summary>A host's function of two arguments; on 32-bit Windows it removes them itself, as the library's own functions do.</summary>
    [UnmanagedFunctionPointer(CallingConvention.Winapi)]
    public delegate IntPtr TessaroCallback2(IntPtr a, IntPtr b);

    /// <summary>What the worker thread calls.</summary>
    [UnmanagedFunctionPointer(CallingConvention.Cdecl)]
    public delegate void TessaroWorker();

    /// <summary>A function that is offered the messages of a hooked window.</summary>
    [UnmanagedFunctionPointer(CallingConvention.Winapi)]
    public delegate int TessaroHook(IntPtr window, UIntPtr message, UIntPtr first, IntPtr second, IntPtr value);

    /// <summary>All functions of the library by name. Memory is measured before a call: what is too short raises
    /// <see cref="ArgumentException"/>. Results are returned as they are.</summary>
    public static unsafe class Functions
    {
        /// <summary>
        /// Differences of bytes, the reference one place before, 128 before the start.
        /// </summary>
        /// <param name="source">What is transformed. At least length bytes.</param>
        /// <param name="destination">What comes of it; of an odd length of 16-bit words the last byte is left
        /// alone. At least length bytes.</param>
        /// <param name="length">The size of both.</param>
        /// <param name="written">The number of bytes made: the length, or for 16-bit words the even part of
        /// it.</param>
        /// <returns>0: Always.</returns>
        public static int iwave11Encoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length, ref uint written)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            fixed (uint* written_ = &written)
            {
                return Native.iwave11Encoder(source_, destination_, length, written_);
            }
        }

        /// <summary>
        /// Undoes <c>iwave11Encoder</c>.
        /// </summary>
        /// <param name="source">What is transformed. At least length bytes.</param>
        /// <param name="destination">What comes of it; of an odd length of 16-bit words the last byte is left
        /// alone. At least length bytes.</param>
        /// <param name="length">The size of both.</param>
        /// <returns>0: Always.</returns>
        public static int iwave11Decoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            {
                return Native.iwave11Decoder(source_, destination_, length);
            }
        }

        /// <summary>
        /// Differences of bytes, the reference two places before, 128 before the start.
        /// </summary>
        /// <param name="source">What is transformed. At least length bytes.</param>
        /// <param name="destination">What comes of it; of an odd length of 16-bit words the last byte is left
        /// alone. At least length bytes.</param>
        /// <param name="length">The size of both.</param>
        /// <param name="written">The number of bytes made: the length, or for 16-bit words the even part of
        /// it.</param>
        /// <returns>0: Always.</returns>
        public static int iwave12Encoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length, ref uint written)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            fixed (uint* written_ = &written)
            {
                return Native.iwave12Encoder(source_, destination_, length, written_);
            }
        }

        /// <summary>
        /// Undoes <c>iwave12Encoder</c>.
        /// </summary>
        /// <param name="source">What is transformed. At least length bytes.</param>
        /// <param name="destination">What comes of it; of an odd length of 16-bit words the last byte is left
        /// alone. At least length bytes.</param>
        /// <param name="length">The size of both.</param>
        /// <returns>0: Always.</returns>
        public static int iwave12Decoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            {
                return Native.iwave12Decoder(source_, destination_, length);
            }
        }

        /// <summary>
        /// Differences of bytes, the reference four places before, 128 before the start.
        /// </summary>
        /// <param name="source">What is transformed. At least length bytes.</param>
        /// <param name="destination">What comes of it; of an odd length of 16-bit words the last byte is left
        /// alone. At least length bytes.</param>
        /// <param name="length">The size of both.</param>
        /// <param name="written">The number of bytes made: the length, or for 16-bit words the even part of
        /// it.</param>
        /// <returns>0: Always.</returns>
        public static int iwave32Encoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length, ref uint written)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            fixed (uint* written_ = &written)
            {
                return Native.iwave32Encoder(source_, destination_, length, written_);
            }
        }

        /// <summary>
        /// Undoes <c>iwave32Encoder</c>.
        /// </summary>
        /// <param name="source">What is transformed. At least length bytes.</param>
        /// <param name="destination">What comes of it; of an odd length of 16-bit words the last byte is left
        /// alone. At least length bytes.</param>
        /// <param name="length">The size of both.</param>
        /// <returns>0: Always.</returns>
        public static int iwave32Decoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            {
                return Native.iwave32Decoder(source_, destination_, length);
            }
        }

        /// <summary>
        /// Differences of little-endian 16-bit words, the reference one word before, 0 before the start.
        /// </summary>
        /// <remarks>
        /// The last byte of an odd length is neither coded nor copied: the host carries it.
        /// </remarks>
        /// <param name="source">What is transformed. At least length bytes.</param>
        /// <param name="destination">What comes of it; of an odd length of 16-bit words the last byte is left
        /// alone. At least length bytes.</param>
        /// <param name="length">The size of both.</param>
        /// <param name="written">The number of bytes made: the length, or for 16-bit words the even part of
        /// it.</param>
        /// <returns>0: Always.</returns>
        public static int iwave21Encoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length, ref uint written)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            fixed (uint* written_ = &written)
            {
                return Native.iwave21Encoder(source_, destination_, length, written_);
            }
        }

        /// <summary>
        /// Undoes <c>iwave21Encoder</c>.
        /// </summary>
        /// <param name="source">What is transformed. At least length bytes.</param>
        /// <param name="destination">What comes of it; of an odd length of 16-bit words the last byte is left
        /// alone. At least length bytes.</param>
        /// <param name="length">The size of both.</param>
        /// <returns>0: Always.</returns>
        public static int iwave21Decoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            {
                return Native.iwave21Decoder(source_, destination_, length);
            }
        }

        /// <summary>
        /// Differences of little-endian 16-bit words, the reference two words before, 0 before the start.
        /// </summary>
        /// <remarks>
        /// The last byte of an odd length is neither coded nor copied: the host carries it.
        /// </remarks>
        /// <param name="source">What is transformed. At least length bytes.</param>
        /// <param name="destination">What comes of it; of an odd length of 16-bit words the last byte is left
        /// alone. At least length bytes.</param>
        /// <param name="length">The size of both.</param>
        /// <param name="written">The number of bytes made: the length, or for 16-bit words the even part of
        /// it.</param>
        /// <returns>0: Always.</returns>
        public static int iwave22Encoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length, ref uint written)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            fixed (uint* written_ = &written)
            {
                return Native.iwave22Encoder(source_, destination_, length, written_);
            }
        }

        /// <summary>
        /// Undoes <c>iwave22Encoder</c>.
        /// </summary>
        /// <param name="source">What is transformed. At least length bytes.</param>
        /// <param name="destination">What comes of it; of an odd length of 16-bit words the last byte is left
        /// alone. At least length bytes.</param>
        /// <param name="length">The size of both.</param>
        /// <returns>0: Always.</returns>
        public static int iwave22Decoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            {
                return Native.iwave22Decoder(source_, destination_, length);
            }
        }

        /// <summary>
        /// Parts bytes into two planes.
        /// </summary>
        /// <param name="source">What is transformed. At least length bytes.</param>
        /// <param name="destination">What comes of it. At least length bytes.</param>
        /// <param name="length">The size of both.</param>
        /// <param name="written">The number of bytes made: the length.</param>
        /// <returns>0: Always.</returns>
        public static int ichshift2Encoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length, ref uint written)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            fixed (uint* written_ = &written)
            {
                return Native.ichshift2Encoder(source_, destination_, length, written_);
            }
        }

        /// <summary>
        /// Puts two planes together again.
        /// </summary>
        /// <param name="source">What is transformed. At least length bytes.</param>
        /// <param name="destination">What comes of it. At least length bytes.</param>
        /// <param name="length">The size of both.</param>
        /// <returns>0: Always.</returns>
        public static int ichshift2Decoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            {
                return Native.ichshift2Decoder(source_, destination_, length);
            }
        }

        /// <summary>
        /// Parts bytes into three planes.
        /// </summary>
        /// <param name="source">What is transformed. At least length bytes.</param>
        /// <param name="destination">What comes of it. At least length bytes.</param>
        /// <param name="length">The size of both.</param>
        /// <param name="written">The number of bytes made: the length.</param>
        /// <returns>0: Always.</returns>
        public static int ichshift3Encoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length, ref uint written)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            fixed (uint* written_ = &written)
            {
                return Native.ichshift3Encoder(source_, destination_, length, written_);
            }
        }

        /// <summary>
        /// Puts three planes together again.
        /// </summary>
        /// <param name="source">What is transformed. At least length bytes.</param>
        /// <param name="destination">What comes of it. At least length bytes.</param>
        /// <param name="length">The size of both.</param>
        /// <returns>0: Always.</returns>
        public static int ichshift3Decoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            {
                return Native.ichshift3Decoder(source_, destination_, length);
            }
        }

        /// <summary>
        /// Parts bytes into four planes.
        /// </summary>
        /// <param name="source">What is transformed. At least length bytes.</param>
        /// <param name="destination">What comes of it. At least length bytes.</param>
        /// <param name="length">The size of both.</param>
        /// <param name="written">The number of bytes made: the length.</param>
        /// <returns>0: Always.</returns>
        public static int ichshift4Encoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length, ref uint written)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            fixed (uint* written_ = &written)
            {
                return Native.ichshift4Encoder(source_, destination_, length, written_);
            }
        }

        /// <summary>
        /// Puts four planes together again.
        /// </summary>
        /// <param name="source">What is transformed. At least length bytes.</param>
        /// <param name="destination">What comes of it. At least length bytes.</param>
        /// <param name="length">The size of both.</param>
        /// <returns>0: Always.</returns>
        public static int ichshift4Decoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            {
                return Native.ichshift4Decoder(source_, destination_, length);
            }
        }

        /// <summary>
        /// Codes pairs of bytes, each against the pair before.
        /// </summary>
        /// <remarks>
        /// A pair costs 3 bits (equal to the one before) to 19.
        /// </remarks>
        /// <param name="source">What is coded. At least length bytes.</param>
        /// <param name="destination">The stream. At least length bytes.</param>
        /// <param name="length">The size of the source, and of the memory at the destination.</param>
        /// <param name="written">Bytes of the stream; untouched where the source is shorter than the
        /// minimum.</param>
        /// <returns>0: The stream is complete and shorter than the limit. 1: The data does not compress; keep the
        /// source. Below the minimum nothing is written, otherwise the first <c>*written</c> bytes of a stream that
        /// was given up.</returns>
        public static int iEncoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length, ref uint written)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            fixed (uint* written_ = &written)
            {
                return Native.iEncoder(source_, destination_, length, written_);
            }
        }

        /// <summary>
        /// Decodes a trusted stream of <c>i</c>.
        /// </summary>
        /// <remarks>
        /// A span has an end, so the work is done by <c>iDecoderSafe</c>: a stream that is damaged or cut off
        /// returns 1 here, and nothing behind it is read.
        /// </remarks>
        /// <param name="stream">The stream.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done. 1: The count is 0.</returns>
        public static int iDecoder(ReadOnlySpan<byte> stream, Span<byte> destination, uint count)
        {
            if (count == 0) return 0;  // it asks for nothing, not even a stream
            return iDecoderSafe(stream, destination, (uint)stream.Length, count);
        }

        /// <summary>
        /// Decodes any stream of <c>i</c>, safely.
        /// </summary>
        /// <param name="stream">The stream. At least stream_size bytes.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="stream_size">Its size.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done. 1: The stream ended early or the count is 0 (nothing is changed then). The destination
        /// begins with the bytes that were made.</returns>
        public static int iDecoderSafe(ReadOnlySpan<byte> stream, Span<byte> destination, uint stream_size, uint count)
        {
            Check.Memory("stream", stream.Length, (long)stream_size);
            Check.Memory("destination", destination.Length, (long)count);
            fixed (byte* stream_ = &MemoryMarshal.GetReference(stream))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            {
                return Native.iDecoderSafe(stream_, destination_, stream_size, count);
            }
        }

        /// <summary>
        /// Codes pixels that repeat the one before.
        /// </summary>
        /// <remarks>
        /// A group of four bytes that equals the one before costs one bit, any other 33.
        /// </remarks>
        /// <param name="source">What is coded. At least length bytes.</param>
        /// <param name="destination">The stream. At least length bytes.</param>
        /// <param name="length">The size of the source, and of the memory at the destination.</param>
        /// <param name="written">Bytes of the stream; untouched where the source is shorter than the
        /// minimum.</param>
        /// <returns>0: The stream is complete and shorter than the limit. 1: The data does not compress; keep the
        /// source. Below the minimum nothing is written, otherwise the first <c>*written</c> bytes of a stream that
        /// was given up.</returns>
        public static int ioEncoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length, ref uint written)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            fixed (uint* written_ = &written)
            {
                return Native.ioEncoder(source_, destination_, length, written_);
            }
        }

        /// <summary>
        /// Decodes a trusted stream of <c>io</c>.
        /// </summary>
        /// <remarks>
        /// A span has an end, so the work is done by <c>ioDecoderSafe</c>: a stream that is damaged or cut off
        /// returns 1 here, and nothing behind it is read.
        /// </remarks>
        /// <param name="stream">The stream.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done. 1: The count is 0.</returns>
        public static int ioDecoder(ReadOnlySpan<byte> stream, Span<byte> destination, uint count)
        {
            if (count == 0) return 0;  // it asks for nothing, not even a stream
            return ioDecoderSafe(stream, destination, (uint)stream.Length, count);
        }

        /// <summary>
        /// Decodes any stream of <c>io</c>, safely.
        /// </summary>
        /// <param name="stream">The stream. At least stream_size bytes.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="stream_size">Its size.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done. 1: The stream ended early or the count is 0 (nothing is changed then). The destination
        /// begins with the bytes that were made.</returns>
        public static int ioDecoderSafe(ReadOnlySpan<byte> stream, Span<byte> destination, uint stream_size, uint count)
        {
            Check.Memory("stream", stream.Length, (long)stream_size);
            Check.Memory("destination", destination.Length, (long)count);
            fixed (byte* stream_ = &MemoryMarshal.GetReference(stream))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            {
                return Native.ioDecoderSafe(stream_, destination_, stream_size, count);
            }
        }

        /// <summary>
        /// Codes blocks of six bytes that repeat the byte before, or are the one that most often follows it in this
        /// source, or are sent.
        /// </summary>
        /// <remarks>
        /// 256 bytes of every stream are the table of successors.
        /// </remarks>
        /// <param name="source">What is coded. At least length bytes.</param>
        /// <param name="destination">The stream. At least length bytes.</param>
        /// <param name="length">The size of the source, and of the memory at the destination.</param>
        /// <param name="written">Bytes of the stream; untouched where the source is shorter than the
        /// minimum.</param>
        /// <returns>0: The stream is complete and shorter than the limit. 1: The data does not compress; keep the
        /// source. Below the minimum nothing is written, otherwise the first <c>*written</c> bytes of a stream that
        /// was given up.</returns>
        public static int ib18Encoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length, ref uint written)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            fixed (uint* written_ = &written)
            {
                return Native.ib18Encoder(source_, destination_, length, written_);
            }
        }

        /// <summary>
        /// Decodes a trusted stream of <c>ib18</c>.
        /// </summary>
        /// <remarks>
        /// A span has an end, so the work is done by <c>ib18DecoderSafe</c>: a stream that is damaged or cut off
        /// returns 1 here, and nothing behind it is read.
        /// </remarks>
        /// <param name="stream">The stream.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done; also for a count of 0.</returns>
        public static int ib18Decoder(ReadOnlySpan<byte> stream, Span<byte> destination, uint count)
        {
            if (count == 0) return 0;  // it asks for nothing, not even a stream
            return ib18DecoderSafe(stream, destination, (uint)stream.Length, count);
        }

        /// <summary>
        /// Decodes any stream of <c>ib18</c>, safely.
        /// </summary>
        /// <param name="stream">The stream. At least stream_size bytes.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="stream_size">Its size.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done. 1: The stream ended early or the count is 0 (nothing is changed then). The destination
        /// begins with the bytes that were made.</returns>
        public static int ib18DecoderSafe(ReadOnlySpan<byte> stream, Span<byte> destination, uint stream_size, uint count)
        {
            Check.Memory("stream", stream.Length, (long)stream_size);
            Check.Memory("destination", destination.Length, (long)count);
            fixed (byte* stream_ = &MemoryMarshal.GetReference(stream))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            {
                return Native.ib18DecoderSafe(stream_, destination_, stream_size, count);
            }
        }

        /// <summary>
        /// Codes as <c>ib18Encoder</c> does, one channel of 32-bit pixels after another.
        /// </summary>
        /// <remarks>
        /// The table of successors is that of the plain order. Only a length that is a multiple of 4 is restored.
        /// </remarks>
        /// <param name="source">What is coded. At least length bytes.</param>
        /// <param name="destination">The stream. At least length bytes.</param>
        /// <param name="length">The size of the source, and of the memory at the destination.</param>
        /// <param name="written">Bytes of the stream; untouched where the source is shorter than the
        /// minimum.</param>
        /// <returns>0: The stream is complete and shorter than the limit. 1: The data does not compress; keep the
        /// source. Below the minimum nothing is written, otherwise the first <c>*written</c> bytes of a stream that
        /// was given up.</returns>
        public static int ib18EncoderEx(ReadOnlySpan<byte> source, Span<byte> destination, uint length, ref uint written)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            fixed (uint* written_ = &written)
            {
                return Native.ib18EncoderEx(source_, destination_, length, written_);
            }
        }

        /// <summary>
        /// Decodes a trusted stream of <c>ib18</c>, one channel after another.
        /// </summary>
        /// <remarks>
        /// A span has an end, so the work is done by <c>ib18DecoderExSafe</c>: a stream that is damaged or cut off
        /// returns 1 here, and nothing behind it is read.
        /// </remarks>
        /// <param name="stream">The stream.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done; also for a count of 0.</returns>
        public static int ib18DecoderEx(ReadOnlySpan<byte> stream, Span<byte> destination, uint count)
        {
            if (count == 0) return 0;  // it asks for nothing, not even a stream
            return ib18DecoderExSafe(stream, destination, (uint)stream.Length, count);
        }

        /// <summary>
        /// Decodes any stream of <c>ib18</c>, one channel after another, safely.
        /// </summary>
        /// <param name="stream">The stream. At least stream_size bytes.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="stream_size">Its size.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done. 1: The stream ended early or the count is 0 (nothing is changed then). What was made
        /// lies at positions 0, 4, 8, ..., then 1, 5, ....</returns>
        public static int ib18DecoderExSafe(ReadOnlySpan<byte> stream, Span<byte> destination, uint stream_size, uint count)
        {
            Check.Memory("stream", stream.Length, (long)stream_size);
            Check.Memory("destination", destination.Length, (long)count);
            fixed (byte* stream_ = &MemoryMarshal.GetReference(stream))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            {
                return Native.ib18DecoderExSafe(stream_, destination_, stream_size, count);
            }
        }

        /// <summary>
        /// Codes groups of 4, 8, 16, ...
        /// </summary>
        /// <remarks>
        /// bytes, each group with 8, 5, 3 or 0 bits a byte, whatever differs from the byte before.
        ///
        /// A stream that is given up ends with one more byte.
        /// </remarks>
        /// <param name="source">What is coded. At least length bytes.</param>
        /// <param name="destination">The stream. At least length bytes.</param>
        /// <param name="length">The size of the source, and of the memory at the destination.</param>
        /// <param name="written">Bytes of the stream; untouched where the source is shorter than the
        /// minimum.</param>
        /// <returns>0: The stream is complete and shorter than the limit. 1: The data does not compress; keep the
        /// source. Below the minimum nothing is written, otherwise the first <c>*written</c> bytes of a stream that
        /// was given up.</returns>
        public static int iabrEncoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length, ref uint written)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            fixed (uint* written_ = &written)
            {
                return Native.iabrEncoder(source_, destination_, length, written_);
            }
        }

        /// <summary>
        /// Decodes a trusted stream of <c>iabr</c>.
        /// </summary>
        /// <remarks>
        /// A span has an end, so the work is done by <c>iabrDecoderSafe</c>: a stream that is damaged or cut off
        /// returns 1 here, and nothing behind it is read.
        /// </remarks>
        /// <param name="stream">The stream.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done. 1: The count is 0.</returns>
        public static int iabrDecoder(ReadOnlySpan<byte> stream, Span<byte> destination, uint count)
        {
            if (count == 0) return 0;  // it asks for nothing, not even a stream
            return iabrDecoderSafe(stream, destination, (uint)stream.Length, count);
        }

        /// <summary>
        /// Decodes any stream of <c>iabr</c>, safely.
        /// </summary>
        /// <param name="stream">The stream. At least stream_size bytes.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="stream_size">Its size.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done. 1: The stream ended early or the count is 0 (nothing is changed then). The destination
        /// begins with the bytes that were made.</returns>
        public static int iabrDecoderSafe(ReadOnlySpan<byte> stream, Span<byte> destination, uint stream_size, uint count)
        {
            Check.Memory("stream", stream.Length, (long)stream_size);
            Check.Memory("destination", destination.Length, (long)count);
            fixed (byte* stream_ = &MemoryMarshal.GetReference(stream))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            {
                return Native.iabrDecoderSafe(stream_, destination_, stream_size, count);
            }
        }

        /// <summary>
        /// Codes groups of <c>4 * 2^k</c> bytes that agree in their top bits, in a few bits each, with an escape
        /// for those that do not fit.
        /// </summary>
        /// <remarks>
        /// A stream that is given up ends with one more byte.
        /// </remarks>
        /// <param name="source">What is coded. At least length bytes.</param>
        /// <param name="destination">The stream. At least length bytes.</param>
        /// <param name="length">The size of the source, and of the memory at the destination.</param>
        /// <param name="written">Bytes of the stream; untouched where the source is shorter than the
        /// minimum.</param>
        /// <returns>0: The stream is complete and shorter than the limit. 1: The data does not compress; keep the
        /// source. Below the minimum nothing is written, otherwise the first <c>*written</c> bytes of a stream that
        /// was given up.</returns>
        public static int inabeEncoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length, ref uint written)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            fixed (uint* written_ = &written)
            {
                return Native.inabeEncoder(source_, destination_, length, written_);
            }
        }

        /// <summary>
        /// Decodes a trusted stream of <c>inabe</c>.
        /// </summary>
        /// <remarks>
        /// A span has an end, so the work is done by <c>inabeDecoderSafe</c>: a stream that is damaged or cut off
        /// returns 1 here, and nothing behind it is read.
        /// </remarks>
        /// <param name="stream">The stream.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done; also for a count of 0.</returns>
        public static int inabeDecoder(ReadOnlySpan<byte> stream, Span<byte> destination, uint count)
        {
            if (count == 0) return 0;  // it asks for nothing, not even a stream
            return inabeDecoderSafe(stream, destination, (uint)stream.Length, count);
        }

        /// <summary>
        /// Decodes a trusted stream of <c>inabe</c> and undoes two transforms in the same pass.
        /// </summary>
        /// <remarks>
        /// Pixels that were prepared with <c>ichshift4Encoder</c>, then <c>iwave11Encoder</c>, then coded, come
        /// back with one
        /// call; any length does.
        ///
        /// A span has an end, so the work is done by <c>inabeDecoderExSafe</c>: a stream that is damaged or cut off
        /// returns 1 here, and nothing behind it is read.
        /// </remarks>
        /// <param name="stream">The stream.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done; also for a count of 0.</returns>
        public static int inabeDecoderEx(ReadOnlySpan<byte> stream, Span<byte> destination, uint count)
        {
            if (count == 0) return 0;  // it asks for nothing, not even a stream
            return inabeDecoderExSafe(stream, destination, (uint)stream.Length, count);
        }

        /// <summary>
        /// Decodes any stream of <c>inabe</c>, safely.
        /// </summary>
        /// <param name="stream">The stream. At least stream_size bytes.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="stream_size">Its size.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done. 1: The stream ended early or the count is 0 (nothing is changed then). From the last
        /// four whole codes on, everything up to the end of the group may be wrong.</returns>
        public static int inabeDecoderSafe(ReadOnlySpan<byte> stream, Span<byte> destination, uint stream_size, uint count)
        {
            Check.Memory("stream", stream.Length, (long)stream_size);
            Check.Memory("destination", destination.Length, (long)count);
            fixed (byte* stream_ = &MemoryMarshal.GetReference(stream))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            {
                return Native.inabeDecoderSafe(stream_, destination_, stream_size, count);
            }
        }

        /// <summary>
        /// Decodes any stream of <c>inabe</c> and undoes the transforms as <c>inabeDecoderEx</c> does, safely.
        /// </summary>
        /// <param name="stream">The stream. At least stream_size bytes.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="stream_size">Its size.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done. 1: The stream ended early or the count is 0 (nothing is changed then). What was made
        /// lies at positions 0, 4, 8, ..., then 1, 5, ..., and its end may be wrong as for
        /// <c>inabeDecoderSafe</c>.</returns>
        public static int inabeDecoderExSafe(ReadOnlySpan<byte> stream, Span<byte> destination, uint stream_size, uint count)
        {
            Check.Memory("stream", stream.Length, (long)stream_size);
            Check.Memory("destination", destination.Length, (long)count);
            fixed (byte* stream_ = &MemoryMarshal.GetReference(stream))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            {
                return Native.inabeDecoderExSafe(stream_, destination_, stream_size, count);
            }
        }

        /// <summary>
        /// Codes pixels against the pixel before, in two pairs of channels: blue and red, green and alpha.
        /// </summary>
        /// <remarks>
        /// A pixel costs 6 to 34 bits.
        /// </remarks>
        /// <param name="source">What is coded. At least length bytes.</param>
        /// <param name="destination">The stream. At least length bytes.</param>
        /// <param name="length">The size of the source, and of the memory at the destination.</param>
        /// <param name="written">Bytes of the stream; untouched where the source is shorter than the
        /// minimum.</param>
        /// <returns>0: The stream is complete and shorter than the limit. 1: The data does not compress; keep the
        /// source. Below the minimum nothing is written, otherwise the first <c>*written</c> bytes of a stream that
        /// was given up.</returns>
        public static int imistEncoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length, ref uint written)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            fixed (uint* written_ = &written)
            {
                return Native.imistEncoder(source_, destination_, length, written_);
            }
        }

        /// <summary>
        /// Decodes a trusted stream of <c>imist</c>.
        /// </summary>
        /// <remarks>
        /// A span has an end, so the work is done by <c>imistDecoderSafe</c>: a stream that is damaged or cut off
        /// returns 1 here, and nothing behind it is read.
        /// </remarks>
        /// <param name="stream">The stream.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done. 1: The count is 0.</returns>
        public static int imistDecoder(ReadOnlySpan<byte> stream, Span<byte> destination, uint count)
        {
            if (count == 0) return 0;  // it asks for nothing, not even a stream
            return imistDecoderSafe(stream, destination, (uint)stream.Length, count);
        }

        /// <summary>
        /// Decodes any stream of <c>imist</c>, safely.
        /// </summary>
        /// <param name="stream">The stream. At least stream_size bytes.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="stream_size">Its size.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done. 1: The stream ended early or the count is 0 (nothing is changed then). The destination
        /// begins with the bytes that were made.</returns>
        public static int imistDecoderSafe(ReadOnlySpan<byte> stream, Span<byte> destination, uint stream_size, uint count)
        {
            Check.Memory("stream", stream.Length, (long)stream_size);
            Check.Memory("destination", destination.Length, (long)count);
            fixed (byte* stream_ = &MemoryMarshal.GetReference(stream))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            {
                return Native.imistDecoderSafe(stream_, destination_, stream_size, count);
            }
        }

        /// <summary>
        /// Codes blocks of eight bytes, each byte whole or as the bits in which it differs from a byte one to eight
        /// places back.
        /// </summary>
        /// <remarks>
        /// The encoder tries every distance and every number of bits.
        /// </remarks>
        /// <param name="source">What is coded. At least length bytes.</param>
        /// <param name="destination">The stream. At least length bytes.</param>
        /// <param name="length">The size of the source, and of the memory at the destination.</param>
        /// <param name="written">Bytes of the stream; untouched where the source is shorter than the
        /// minimum.</param>
        /// <returns>0: The stream is complete and shorter than the limit. 1: The data does not compress; keep the
        /// source. Below the minimum nothing is written, otherwise the first <c>*written</c> bytes of a stream that
        /// was given up.</returns>
        public static int indaEncoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length, ref uint written)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            fixed (uint* written_ = &written)
            {
                return Native.indaEncoder(source_, destination_, length, written_);
            }
        }

        /// <summary>
        /// Decodes a trusted stream of <c>inda</c>.
        /// </summary>
        /// <remarks>
        /// A span has an end, so the work is done by <c>indaDecoderSafe</c>: a stream that is damaged or cut off
        /// returns 1 here, and nothing behind it is read.
        /// </remarks>
        /// <param name="stream">The stream.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done. 1: The count is 0.</returns>
        public static int indaDecoder(ReadOnlySpan<byte> stream, Span<byte> destination, uint count)
        {
            if (count == 0) return 0;  // it asks for nothing, not even a stream
            return indaDecoderSafe(stream, destination, (uint)stream.Length, count);
        }

        /// <summary>
        /// Decodes any stream of <c>inda</c>, safely.
        /// </summary>
        /// <param name="stream">The stream. At least stream_size bytes.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="stream_size">Its size.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done. 1: The stream ended early or the count is 0 (nothing is changed then). The destination
        /// begins with the bytes that were made; several are made at once, and the last of them may be
        /// missing.</returns>
        public static int indaDecoderSafe(ReadOnlySpan<byte> stream, Span<byte> destination, uint stream_size, uint count)
        {
            Check.Memory("stream", stream.Length, (long)stream_size);
            Check.Memory("destination", destination.Length, (long)count);
            fixed (byte* stream_ = &MemoryMarshal.GetReference(stream))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            {
                return Native.indaDecoderSafe(stream_, destination_, stream_size, count);
            }
        }

        /// <summary>
        /// Codes pixels against the pixel before, each byte whole or cut to its low 3 or 5 bits.
        /// </summary>
        /// <remarks>
        /// A repeated pixel costs 5 bits, any other 17 to 37.
        /// </remarks>
        /// <param name="source">What is coded. At least length bytes.</param>
        /// <param name="destination">The stream. At least length bytes.</param>
        /// <param name="length">The size of the source, and of the memory at the destination.</param>
        /// <param name="written">Bytes of the stream; untouched where the source is shorter than the
        /// minimum.</param>
        /// <returns>0: The stream is complete and shorter than the limit. 1: The data does not compress; keep the
        /// source. Below the minimum nothing is written, otherwise the first <c>*written</c> bytes of a stream that
        /// was given up.</returns>
        public static int icaEncoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length, ref uint written)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            fixed (uint* written_ = &written)
            {
                return Native.icaEncoder(source_, destination_, length, written_);
            }
        }

        /// <summary>
        /// Decodes a trusted stream of <c>ica</c>.
        /// </summary>
        /// <remarks>
        /// A span has an end, so the work is done by <c>icaDecoderSafe</c>: a stream that is damaged or cut off
        /// returns 1 here, and nothing behind it is read.
        /// </remarks>
        /// <param name="stream">The stream.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done. 1: The count is 0.</returns>
        public static int icaDecoder(ReadOnlySpan<byte> stream, Span<byte> destination, uint count)
        {
            if (count == 0) return 0;  // it asks for nothing, not even a stream
            return icaDecoderSafe(stream, destination, (uint)stream.Length, count);
        }

        /// <summary>
        /// Decodes any stream of <c>ica</c>, safely.
        /// </summary>
        /// <param name="stream">The stream. At least stream_size bytes.</param>
        /// <param name="destination">What was coded. At least count bytes.</param>
        /// <param name="stream_size">Its size.</param>
        /// <param name="count">The length of the source, and the memory at the destination.</param>
        /// <returns>0: Done. 1: The stream ended early or the count is 0 (nothing is changed then). The destination
        /// begins with the bytes that were made.</returns>
        public static int icaDecoderSafe(ReadOnlySpan<byte> stream, Span<byte> destination, uint stream_size, uint count)
        {
            Check.Memory("stream", stream.Length, (long)stream_size);
            Check.Memory("destination", destination.Length, (long)count);
            fixed (byte* stream_ = &MemoryMarshal.GetReference(stream))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            {
                return Native.icaDecoderSafe(stream_, destination_, stream_size, count);
            }
        }

        /// <summary>
        /// Codes pixels whose channels stay constant, in blocks of eight pixels.
        /// </summary>
        /// <remarks>
        /// Takes any length.
        ///
        /// The stream can be longer than the source.
        /// </remarks>
        /// <param name="source">What is coded. At least length bytes.</param>
        /// <param name="destination">The stream. At least length + ceil_div(length, 32) + 3 bytes.</param>
        /// <param name="length">The size of the source, and of the memory at the destination.</param>
        /// <param name="written">Bytes of the stream.</param>
        /// <returns>0: Always.</returns>
        public static int c2fEncoder(ReadOnlySpan<byte> source, Span<byte> destination, uint length, ref uint written)
        {
            Check.Memory("source", source.Length, (long)length);
            Check.Memory("destination", destination.Length, (long)length + Check.CeilDiv((long)length, 32) + 3);
            fixed (byte* source_ = &MemoryMarshal.GetReference(source))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            fixed (uint* written_ = &written)
            {
                return Native.c2fEncoder(source_, destination_, length, written_);
            }
        }

        /// <summary>
        /// Decodes <c>c2f</c>.
        /// </summary>
        /// <remarks>
        /// It checks both sizes, and is safe with any stream.
        ///
        /// The zeros at the end of a source whose length is not a multiple of 32 are not stored: behind the last
        /// byte
        /// of the stream every second byte up to <c>size</c> becomes 0, beginning with the first, and the ones
        /// between keep
        /// what they held. A host therefore clears the destination first. An end part that is longer than the room
        /// left is cut, with result 0.
        /// </remarks>
        /// <param name="stream">The stream. At least stream_size bytes.</param>
        /// <param name="destination">What was coded. At least size bytes.</param>
        /// <param name="stream_size">Its size.</param>
        /// <param name="size">The length of the source.</param>
        /// <returns>0: Done. 1: The stream ended early, or describes more than <c>size</c> bytes before its end
        /// part; the destination begins with what was decoded before that.</returns>
        public static int c2fDecoder(ReadOnlySpan<byte> stream, Span<byte> destination, uint stream_size, uint size)
        {
            Check.Memory("stream", stream.Length, (long)stream_size);
            Check.Memory("destination", destination.Length, (long)size);
            fixed (byte* stream_ = &MemoryMarshal.GetReference(stream))
            fixed (byte* destination_ = &MemoryMarshal.GetReference(destination))
            {
                return Native.c2fDecoder(stream_, destination_, stream_size, size);
            }
        }

        /// <summary>
        /// The extents of a bitmap in HIMETRIC units, hundredths of a millimetre, not in pixels.
        /// </summary>
        /// <remarks>
        /// Elsewhere than on Windows at 96 pixels an inch, rounded to nearest: 8 pixels are 212, and <c>pixels =
        /// round(extent * 96 / 2540)</c>; so too on Windows where the screen has 96 pixels an inch. Both are set to
        /// 0
        /// before anything else and stay 0 where there is no bitmap.
        /// </remarks>
        /// <param name="file">The file as it lies on disk. At least size bytes.</param>
        /// <param name="size">Its size.</param>
        /// <param name="width">The width.</param>
        /// <param name="height">The height.</param>
        /// <returns>0: Handled; also for a file that is no picture, for a picture that is no bitmap (an icon, a
        /// cursor, a metafile), and where there is no memory for it. 1: The size is out of range.</returns>
        public static int DecodeImageHead(ReadOnlySpan<byte> file, int size, ref int width, ref int height)
        {
            Check.Memory("file", file.Length, (long)size);
            fixed (byte* file_ = &MemoryMarshal.GetReference(file))
            fixed (int* width_ = &width)
            fixed (int* height_ = &height)
            {
                return Native.DecodeImageHead(file_, size, width_, height_);
            }
        }

        /// <summary>
        /// Draws a bitmap at (0, 0) of a device context.
        /// </summary>
        /// <remarks>
        /// Pixels are <c>0xAARRGGBB</c> with alpha 0 where the file has none (<c>BBIClearMask(image, 0, 0, 0, 255,
        /// 0x00FFFFFF)</c> makes them opaque); the fourth byte of 32-bit bitmaps becomes alpha. The rectangle drawn
        /// has
        /// as many columns as the number of the picture's HIMETRIC height, and as many rows as that of its HIMETRIC
        /// width, cut to the picture and to the destination: all of a picture, unless one edge is over 26 times as
        /// long as the other.
        ///
        /// Elsewhere than on Windows a call takes at most 1 GiB of memory, and time for what the destination shows
        /// at
        /// most: of the worst files known, of 8 MiB or less and drawn to their last row, a bitmap took 0.4 s, a
        /// JPEG
        /// file 1.4 s, a PNG file 1.8 s and a GIF file 0.8 s of a server's processor.
        /// </remarks>
        /// <param name="device">Elsewhere than on Windows an <c>ImageRecord</c>; on Windows an HDC.</param>
        /// <param name="file">The file as it lies on disk. At least size bytes.</param>
        /// <param name="size">Its size.</param>
        /// <returns>0: Handled; also for a file that is no picture, for a picture that is no bitmap (an icon, a
        /// cursor, a metafile), and where there is no memory for it. 1: The size is out of range.</returns>
        public static int DecodeImage(Image device, ReadOnlySpan<byte> file, int size)
        {
            Check.Image("device", device);
            Check.Memory("file", file.Length, (long)size);
            fixed (byte* device_p = device.Memory)
            fixed (byte* file_ = &MemoryMarshal.GetReference(file))
            {
                return Native.DecodeImage(device_p + device.Offset, file_, size);
            }
        }

        /// <summary>
        /// Draws the points of the walk; where both ends are one, that pixel.
        /// </summary>
        /// <param name="image">The image that is drawn on.</param>
        /// <param name="x0">The first corner or end.</param>
        /// <param name="y0">The first corner or end.</param>
        /// <param name="x1">The other corner or end.</param>
        /// <param name="y1">The other corner or end.</param>
        /// <param name="mask">Bits that the image keeps: <c>(~mask &amp; colour) | (old &amp; mask)</c>. 0 stores
        /// the colour.</param>
        /// <param name="colour">The colour.</param>
        /// <returns>0: Done, also when nothing lies inside the image.</returns>
        public static int BBIDrawLine(Image image, int x0, int y0, int x1, int y1, uint mask, uint colour)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIDrawLine(image_p + image.Offset, x0, y0, x1, y1, mask, colour);
            }
        }

        /// <summary>
        /// Fills holes along a line: writes each point of the walk of whose neighbours three or four equal the
        /// colour.
        /// </summary>
        /// <remarks>
        /// Neighbours are the pixels left, right, above and below, inside the image; they are compared in all 32
        /// bits,
        /// and count as they are when the walk gets there, those that it has written too. Where both ends are one
        /// nothing happens.
        /// </remarks>
        /// <param name="image">The image that is drawn on.</param>
        /// <param name="x0">The first corner or end.</param>
        /// <param name="y0">The first corner or end.</param>
        /// <param name="x1">The other corner or end.</param>
        /// <param name="y1">The other corner or end.</param>
        /// <param name="mask">Bits that the image keeps: <c>(~mask &amp; colour) | (old &amp; mask)</c>. 0 stores
        /// the colour.</param>
        /// <param name="colour">The colour.</param>
        /// <returns>0: Done, also when nothing lies inside the image.</returns>
        public static int BBIDotThick(Image image, int x0, int y0, int x1, int y1, uint mask, uint colour)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIDotThick(image_p + image.Offset, x0, y0, x1, y1, mask, colour);
            }
        }

        /// <summary>
        /// Grows strokes of the colour towards a line.
        /// </summary>
        /// <remarks>
        /// Each point of the walk, which may lie outside the image and is not written itself, has four arms: right,
        /// left, down, up, in this order. An arm is scanned inwards, at the distances d = <c>thickness</c> to 1:
        /// where the
        /// pixel lies inside the image and equals the colour in all 32 bits, <c>found = thickness + 1 - d</c>;
        /// then, where
        /// it lies inside and <c>found &gt;= d</c>, it is written. found starts at 0 for each arm. So the colour at
        /// distance d
        /// paints its arm from distance <c>min(d, thickness + 1 - d)</c> inwards.
        /// </remarks>
        /// <param name="image">The image that is drawn on.</param>
        /// <param name="x0">The first corner or end.</param>
        /// <param name="y0">The first corner or end.</param>
        /// <param name="x1">The other corner or end.</param>
        /// <param name="y1">The other corner or end.</param>
        /// <param name="mask">Bits that the image keeps: <c>(~mask &amp; colour) | (old &amp; mask)</c>. 0 stores
        /// the colour.</param>
        /// <param name="colour">The colour.</param>
        /// <param name="thickness">The length of an arm.</param>
        /// <returns>0: Done, also where both ends are one, which does nothing. 1: The thickness is below 1, or the
        /// pitch of the image is not 4 * width.</returns>
        public static int BBILineThick(Image image, int x0, int y0, int x1, int y1, uint mask, uint colour, int thickness)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBILineThick(image_p + image.Offset, x0, y0, x1, y1, mask, colour, thickness);
            }
        }

        /// <summary>
        /// Draws a gradient line, one step late.
        /// </summary>
        /// <remarks>
        /// The walk here has n + 1 steps, in which an error term drops only when it exceeds n, and every step i =
        /// 0..n
        /// draws the point it reaches. So from n = 2 on the line runs from one past its start to one past its end:
        /// a
        /// line from (0, 0) to (4, 0) draws x = 1 to 5. For n = 1 it draws its two ends, for n = 0 its start.
        ///
        /// All four bytes are stored: with c0, c1 the bytes of the two colours, t = i / n (0 for n = 0) and
        /// <c>u = (float)(1 - t)</c>, each is <c>trunc(c1 * t + c0 * u)</c>. Between equal colours a byte may come
        /// out one less.
        /// </remarks>
        /// <param name="image">The image that is drawn on.</param>
        /// <param name="colours">The first two pixels of its first row are the colours of (x0, y0) and (x1,
        /// y1).</param>
        /// <param name="x0">The first corner or end.</param>
        /// <param name="y0">The first corner or end.</param>
        /// <param name="x1">The other corner or end.</param>
        /// <param name="y1">The other corner or end.</param>
        /// <returns>0: Done. 1: <c>colours</c> is narrower than 2 or has no row.</returns>
        public static int BBIDrawGradationLine(Image image, Image colours, int x0, int y0, int x1, int y1)
        {
            Check.Image("image", image);
            Check.Image("colours", colours);
            fixed (byte* image_p = image.Memory)
            fixed (byte* colours_p = colours.Memory)
            {
                return Native.BBIDrawGradationLine(image_p + image.Offset, colours_p + colours.Offset, x0, y0, x1, y1);
            }
        }

        /// <summary>
        /// Draws an antialiased gradient line, blended by the alpha of its colours, which is part of the gradient.
        /// </summary>
        /// <remarks>
        /// M is the greater of |x1 - x0| and |y1 - y0|, N the other; the line goes along x where |x1 - x0| is
        /// greater,
        /// else along y. It begins at the end where that coordinate is less, and the colours c0 and c1 change
        /// places
        /// with the ends. The other coordinate moves by s: 1 where the last end's is greater or the same, else -1.
        ///
        /// Two tracks share the coverage: A begins at the start, B at one pixel from it, at s. With
        /// <c>h = (float)(N / M * 0.5)</c> and <c>q = (float)((N - h) / M)</c>, the coverage of A begins at 1 and
        /// falls by q a
        /// step; below 0 it grows by 1 and A moves by s. That of B begins at h / 2 and grows by q a step; above 1
        /// it
        /// falls by 1 and B moves by s. These sums are exact.
        ///
        /// For i = 0..M, both ends included, the colour is c = mix(c0, c1, <c>trunc((float)(i / M) * 256)</c>), and
        /// a pixel
        /// of coverage v becomes mix(pixel, c, <c>trunc(min(alpha * 0.003921569f * v, 1) * 256)</c>), alpha being
        /// that of
        /// c: first A, then B, then, where B is two pixels ahead of A, the one between them with v = 1. Where A or
        /// B
        /// lies outside the image, none of them is drawn: a horizontal line in the last row draws nothing, nor does
        /// a
        /// vertical one in the last column. Where both ends are one nothing happens.
        /// </remarks>
        /// <param name="image">The image that is drawn on.</param>
        /// <param name="colours">The first two pixels of its first row are the colours of (x0, y0) and (x1,
        /// y1).</param>
        /// <param name="x0">The first corner or end.</param>
        /// <param name="y0">The first corner or end.</param>
        /// <param name="x1">The other corner or end.</param>
        /// <param name="y1">The other corner or end.</param>
        /// <returns>0: Done. 1: <c>colours</c> is narrower than 2 or has no row.</returns>
        public static int BBIDrawAlphaLine(Image image, Image colours, int x0, int y0, int x1, int y1)
        {
            Check.Image("image", image);
            Check.Image("colours", colours);
            fixed (byte* image_p = image.Memory)
            fixed (byte* colours_p = colours.Memory)
            {
                return Native.BBIDrawAlphaLine(image_p + image.Offset, colours_p + colours.Offset, x0, y0, x1, y1);
            }
        }

        /// <summary>
        /// Fills with one colour.
        /// </summary>
        /// <param name="image">The image that is drawn on.</param>
        /// <param name="x">The upper left corner.</param>
        /// <param name="y">The upper left corner.</param>
        /// <param name="cx">The size.</param>
        /// <param name="cy">The size.</param>
        /// <param name="mask">Bits that the image keeps: <c>(~mask &amp; colour) | (old &amp; mask)</c>. 0 stores
        /// the colour.</param>
        /// <param name="colour">The colour.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIDrawColorFill(Image image, int x, int y, int cx, int cy, uint mask, uint colour)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIDrawColorFill(image_p + image.Offset, x, y, cx, cy, mask, colour);
            }
        }

        /// <summary>
        /// Fills with a checkerboard of four colours: pixel (i, j) of the image has colour number <c>(i / tile_cx
        /// &amp; 1) + 2 * (j / tile_cy &amp; 1)</c>.
        /// </summary>
        /// <remarks>
        /// The pattern begins at the image's corner, not at the box's.
        /// </remarks>
        /// <param name="image">The image that is drawn on.</param>
        /// <param name="x">The upper left corner.</param>
        /// <param name="y">The upper left corner.</param>
        /// <param name="cx">The size.</param>
        /// <param name="cy">The size.</param>
        /// <param name="mask">Bits that the image keeps: <c>(~mask &amp; colour) | (old &amp; mask)</c>. 0 stores
        /// the colour.</param>
        /// <param name="tile_cx">The width of a tile; below 1 counts as 1.</param>
        /// <param name="tile_cy">The height of a tile; below 1 counts as 1.</param>
        /// <param name="colour0">Even columns of tiles in even rows.</param>
        /// <param name="colour1">Odd columns in even rows.</param>
        /// <param name="colour2">Even columns in odd rows.</param>
        /// <param name="colour3">Odd columns in odd rows.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIDrawColorTile(Image image, int x, int y, int cx, int cy, uint mask, int tile_cx, int tile_cy, uint colour0, uint colour1, uint colour2, uint colour3)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIDrawColorTile(image_p + image.Offset, x, y, cx, cy, mask, tile_cx, tile_cy, colour0, colour1, colour2, colour3);
            }
        }

        /// <summary>
        /// Fills with a gradient between four corner colours, of which a clipped box shows its part.
        /// </summary>
        /// <remarks>
        /// With (sx, sy, sw, sh) the clipped source rectangle, the visible part begins at <c>(float)(sx / W)</c>
        /// and ends
        /// at <c>(float)((sx + sw) / W)</c> across, down likewise with H. Column i of n visible ones lies at
        /// <c>u = (1 - f) * begin + f * end</c> with <c>f = i / (n - 1)</c>; rows likewise, but v is rounded to
        /// float. A weight
        /// is <c>trunc(max(min(u, 1), 0) * 256)</c>. With the weights wu and wv the pixel is
        /// <c>mix(mix(top_left, bottom_left, wv), mix(top_right, bottom_right, wv), wu)</c>.
        ///
        /// Where one column (row) is visible, its weight is 0: it shows the left (top) colours, wherever it lies in
        /// the box.
        /// </remarks>
        /// <param name="image">The image that is drawn on.</param>
        /// <param name="x">The upper left corner.</param>
        /// <param name="y">The upper left corner.</param>
        /// <param name="cx">The size.</param>
        /// <param name="cy">The size.</param>
        /// <param name="mask">Bits that the image keeps: <c>(~mask &amp; colour) | (old &amp; mask)</c>. 0 stores
        /// the colour.</param>
        /// <param name="top_left">The colour of the corner.</param>
        /// <param name="top_right">The colour of the corner.</param>
        /// <param name="bottom_left">The colour of the corner.</param>
        /// <param name="bottom_right">The colour of the corner.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIDrawBox(Image image, int x, int y, int cx, int cy, uint mask, uint top_left, uint top_right, uint bottom_left, uint bottom_right)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIDrawBox(image_p + image.Offset, x, y, cx, cy, mask, top_left, top_right, bottom_left, bottom_right);
            }
        }

        /// <summary>
        /// Fills with a gradient between the upper left 2 x 2 pixels of the pattern, one for each corner.
        /// </summary>
        /// <remarks>
        /// With p(column, row) a byte of the pattern, read before the first pixel is written,
        /// <c>left = (float)(v * p(0, 1) + (1 - v) * p(0, 0))</c> and <c>right = (float)(v * p(1, 1) + (1 - v) *
        /// p(1, 0))</c>,
        /// the byte is <c>trunc((1 - u) * left + u * right)</c>.
        /// </remarks>
        /// <param name="image">The image that is drawn on.</param>
        /// <param name="pattern">At least 2 x 2 pixels. It may be part of the image.</param>
        /// <param name="x0">The first corner or end.</param>
        /// <param name="y0">The first corner or end.</param>
        /// <param name="x1">The other corner or end.</param>
        /// <param name="y1">The other corner or end.</param>
        /// <returns>0: Done, also when nothing lies inside the image. 1: The pattern is smaller than 2 x
        /// 2.</returns>
        public static int BBIDrawGradationBox(Image image, Image pattern, int x0, int y0, int x1, int y1)
        {
            Check.Image("image", image);
            Check.Image("pattern", pattern);
            fixed (byte* image_p = image.Memory)
            fixed (byte* pattern_p = pattern.Memory)
            {
                return Native.BBIDrawGradationBox(image_p + image.Offset, pattern_p + pattern.Offset, x0, y0, x1, y1);
            }
        }

        /// <summary>
        /// Multiplies a colour chosen along x with one chosen along y: <c>a * b / 255</c> rounded down, byte by
        /// byte.
        /// </summary>
        /// <remarks>
        /// a is column <c>trunc(u * (pattern width - 1))</c> of the pattern's first row, read for each pixel; b is
        /// column
        /// <c>trunc(v * (pattern width - 1))</c> of its second row, read for each row.
        /// </remarks>
        /// <param name="image">The image that is drawn on.</param>
        /// <param name="pattern">At least 2 x 2 pixels. It may be part of the image.</param>
        /// <param name="x0">The first corner or end.</param>
        /// <param name="y0">The first corner or end.</param>
        /// <param name="x1">The other corner or end.</param>
        /// <param name="y1">The other corner or end.</param>
        /// <returns>0: Done, also when nothing lies inside the image. 1: The pattern is smaller than 2 x
        /// 2.</returns>
        public static int BBIDrawMultiplyLineBox(Image image, Image pattern, int x0, int y0, int x1, int y1)
        {
            Check.Image("image", image);
            Check.Image("pattern", pattern);
            fixed (byte* image_p = image.Memory)
            fixed (byte* pattern_p = pattern.Memory)
            {
                return Native.BBIDrawMultiplyLineBox(image_p + image.Offset, pattern_p + pattern.Offset, x0, y0, x1, y1);
            }
        }

        /// <summary>
        /// As BBIDrawMultiplyLineBox, with <c>a + b</c>, above 255 folded back to <c>510 - (a + b)</c>.
        /// </summary>
        /// <param name="image">The image that is drawn on.</param>
        /// <param name="pattern">At least 2 x 2 pixels. It may be part of the image.</param>
        /// <param name="x0">The first corner or end.</param>
        /// <param name="y0">The first corner or end.</param>
        /// <param name="x1">The other corner or end.</param>
        /// <param name="y1">The other corner or end.</param>
        /// <returns>0: Done, also when nothing lies inside the image. 1: The pattern is smaller than 2 x
        /// 2.</returns>
        public static int BBIDrawExclusiveLineBox(Image image, Image pattern, int x0, int y0, int x1, int y1)
        {
            Check.Image("image", image);
            Check.Image("pattern", pattern);
            fixed (byte* image_p = image.Memory)
            fixed (byte* pattern_p = pattern.Memory)
            {
                return Native.BBIDrawExclusiveLineBox(image_p + image.Offset, pattern_p + pattern.Offset, x0, y0, x1, y1);
            }
        }

        /// <summary>
        /// Fills the pixels strictly inside: E(0, 1), E(1, 2) and E(2, 0) are all negative or all positive.
        /// </summary>
        /// <remarks>
        /// No pixel on an edge is drawn, and none of a triangle without area.
        /// </remarks>
        /// <param name="image">The image that is drawn on.</param>
        /// <param name="x0">The first corner or end.</param>
        /// <param name="y0">The first corner or end.</param>
        /// <param name="x1">The other corner or end.</param>
        /// <param name="y1">The other corner or end.</param>
        /// <param name="x2">The third corner.</param>
        /// <param name="y2">The third corner.</param>
        /// <param name="mask">Bits that the image keeps: <c>(~mask &amp; colour) | (old &amp; mask)</c>. 0 stores
        /// the colour.</param>
        /// <param name="colour">The colour.</param>
        /// <returns>0: Always.</returns>
        public static int BBIDrawTriangle(Image image, int x0, int y0, int x1, int y1, int x2, int y2, uint mask, uint colour)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIDrawTriangle(image_p + image.Offset, x0, y0, x1, y1, x2, y2, mask, colour);
            }
        }

        /// <summary>
        /// Fills the pixels inside and on the edges: where E(0, 1) is positive the other two are 0 or more, else
        /// they are 0 or less.
        /// </summary>
        /// <remarks>
        /// Of a triangle without area these are the pixels exactly on its segment. Where the corners are in
        /// clockwise
        /// order as seen on the screen, as (0, 0), (4, 0), (0, 4) are, the edge from the first to the second is
        /// left
        /// out.
        /// </remarks>
        /// <param name="image">The image that is drawn on.</param>
        /// <param name="x0">The first corner or end.</param>
        /// <param name="y0">The first corner or end.</param>
        /// <param name="x1">The other corner or end.</param>
        /// <param name="y1">The other corner or end.</param>
        /// <param name="x2">The third corner.</param>
        /// <param name="y2">The third corner.</param>
        /// <param name="mask">Bits that the image keeps: <c>(~mask &amp; colour) | (old &amp; mask)</c>. 0 stores
        /// the colour.</param>
        /// <param name="colour">The colour.</param>
        /// <returns>0: Always.</returns>
        public static int BBIDrawTriangleA(Image image, int x0, int y0, int x1, int y1, int x2, int y2, uint mask, uint colour)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIDrawTriangleA(image_p + image.Offset, x0, y0, x1, y1, x2, y2, mask, colour);
            }
        }

        /// <summary>
        /// Fills with rings: from the first row of the palette.
        /// </summary>
        /// <param name="image">The image that is drawn on.</param>
        /// <param name="palette">The colours.</param>
        /// <param name="x0">The first corner or end.</param>
        /// <param name="y0">The first corner or end.</param>
        /// <param name="x1">The other corner or end.</param>
        /// <param name="y1">The other corner or end.</param>
        /// <returns>0: Done, also when nothing lies inside the image. 1: The palette is narrower than 2 or has no
        /// row.</returns>
        public static int BBIDrawLineCircle(Image image, Image palette, int x0, int y0, int x1, int y1)
        {
            Check.Image("image", image);
            Check.Image("palette", palette);
            fixed (byte* image_p = image.Memory)
            fixed (byte* palette_p = palette.Memory)
            {
                return Native.BBIDrawLineCircle(image_p + image.Offset, palette_p + palette.Offset, x0, y0, x1, y1);
            }
        }

        /// <summary>
        /// Fills with rings and rays: from the row of the palette that the angle selects.
        /// </summary>
        /// <remarks>
        /// Here <c>v * v</c> in r is rounded to float. The fraction t of a turn is <c>atan(u / v) *
        /// 0.159154976</c>, plus 0.25
        /// where v is negative and 0.75 where it is positive; where v is 0 it is 0.5 for a negative u, else 0. So 0
        /// is
        /// to the right, 0.25 above, 0.5 to the left, 0.75 below, if the corners are the upper left and the lower
        /// right. The row is <c>min(trunc(t * palette height), palette height - 1)</c>. The arctangent is within
        /// one unit
        /// in the last place of the exact one and the same on every target.
        /// </remarks>
        /// <param name="image">The image that is drawn on.</param>
        /// <param name="palette">The colours.</param>
        /// <param name="x0">The first corner or end.</param>
        /// <param name="y0">The first corner or end.</param>
        /// <param name="x1">The other corner or end.</param>
        /// <param name="y1">The other corner or end.</param>
        /// <returns>0: Done, also when nothing lies inside the image. 1: The palette is smaller than 2 x
        /// 2.</returns>
        public static int BBIDrawPolaCircle(Image image, Image palette, int x0, int y0, int x1, int y1)
        {
            Check.Image("image", image);
            Check.Image("palette", palette);
            fixed (byte* image_p = image.Memory)
            fixed (byte* palette_p = palette.Memory)
            {
                return Native.BBIDrawPolaCircle(image_p + image.Offset, palette_p + palette.Offset, x0, y0, x1, y1);
            }
        }

        /// <summary>
        /// Tells the level of the processor, found when the library was loaded.
        /// </summary>
        /// <returns>The level: no result of another function depends on it.</returns>
        public static int GetCpuID()
        {
            return Native.GetCpuID();
        }

        /// <summary>
        /// Returns its argument.
        /// </summary>
        /// <remarks>
        /// Kept for hosts that choose wide code paths with it; the library chooses by itself, and no result depends
        /// on
        /// it.
        /// </remarks>
        /// <param name="flag">Any number.</param>
        /// <returns><c>flag</c>.</returns>
        public static int MMX(int flag)
        {
            return Native.MMX(flag);
        }

        /// <summary>
        /// Returns its argument: lets a host see that the library is there.
        /// </summary>
        /// <param name="x">Any number.</param>
        /// <returns><c>x</c>.</returns>
        public static int BBI(int x)
        {
            return Native.BBI(x);
        }

        /// <summary>
        /// Returns its argument: lets a host see that the library is there.
        /// </summary>
        /// <param name="x">Any number.</param>
        /// <returns><c>x</c>.</returns>
        public static int wave(int x)
        {
            return Native.wave(x);
        }

        /// <summary>
        /// Shifts right and fills with zeros.
        /// </summary>
        /// <param name="value">The number that is shifted or stored.</param>
        /// <param name="count">By how many bits; only its low five bits count, so that 33 shifts by 1.</param>
        /// <returns><c>value &gt;&gt; (count &amp; 31)</c>, unsigned.</returns>
        public static uint SHR(uint value, uint count)
        {
            return Native.SHR(value, count);
        }

        /// <summary>
        /// Shifts right and fills with the sign.
        /// </summary>
        /// <param name="value">The number that is shifted or stored.</param>
        /// <param name="count">By how many bits; only its low five bits count, so that 33 shifts by 1.</param>
        /// <returns><c>value &gt;&gt; (count &amp; 31)</c>, signed: -8 by 1 is -4, -1 by anything -1.</returns>
        public static int SAR(int value, uint count)
        {
            return Native.SAR(value, count);
        }

        /// <summary>
        /// Shifts left.
        /// </summary>
        /// <param name="value">The number that is shifted or stored.</param>
        /// <param name="count">By how many bits; only its low five bits count, so that 33 shifts by 1.</param>
        /// <returns>The low 32 bits of <c>value &lt;&lt; (count &amp; 31)</c>.</returns>
        public static uint SHL(uint value, uint count)
        {
            return Native.SHL(value, count);
        }

        /// <summary>
        /// Reads the 16-bit word at <c>base + 2 * index</c>.
        /// </summary>
        /// <remarks>
        /// The result is 16 bits wide: a host that takes it for 32 finds undefined bits in the upper half.
        /// </remarks>
        /// <param name="base">Where index 0 lies.</param>
        /// <param name="index">Which word, counted from <c>base</c>; may be negative.</param>
        /// <returns>The word.</returns>
        public static ushort GetWORD(ReadOnlySpan<byte> @base, int index)
        {
            Check.Word("base", @base.Length, index, 2);
            fixed (byte* base_ = &MemoryMarshal.GetReference(@base))
            {
                return Native.GetWORD(base_, index);
            }
        }

        /// <summary>
        /// Reads the 16-bit word at <c>base + 2 * index</c>.
        /// </summary>
        /// <remarks>
        /// The result is 16 bits wide: a host that takes it for 32 finds undefined bits in the upper half.
        /// </remarks>
        /// <param name="base">Where index 0 lies.</param>
        /// <param name="index">Which word, counted from <c>base</c>; may be negative.</param>
        /// <returns>The word.</returns>
        public static ushort GetInt(ReadOnlySpan<byte> @base, int index)
        {
            Check.Word("base", @base.Length, index, 2);
            fixed (byte* base_ = &MemoryMarshal.GetReference(@base))
            {
                return Native.GetInt(base_, index);
            }
        }

        /// <summary>
        /// Stores the low 16 bits of a number at <c>base + 2 * index</c>.
        /// </summary>
        /// <param name="base">Where index 0 lies.</param>
        /// <param name="index">Which word, counted from <c>base</c>; may be negative.</param>
        /// <param name="value">The number that is shifted or stored.</param>
        /// <returns>What was stored; 16 bits wide, as with GetWORD.</returns>
        public static ushort SetWORD(Span<byte> @base, int index, uint value)
        {
            Check.Word("base", @base.Length, index, 2);
            fixed (byte* base_ = &MemoryMarshal.GetReference(@base))
            {
                return Native.SetWORD(base_, index, value);
            }
        }

        /// <summary>
        /// Stores the low 16 bits of a number at <c>base + 2 * index</c>.
        /// </summary>
        /// <param name="base">Where index 0 lies.</param>
        /// <param name="index">Which word, counted from <c>base</c>; may be negative.</param>
        /// <param name="value">The number that is shifted or stored.</param>
        /// <returns>What was stored; 16 bits wide, as with GetWORD.</returns>
        public static ushort SetInt(Span<byte> @base, int index, uint value)
        {
            Check.Word("base", @base.Length, index, 2);
            fixed (byte* base_ = &MemoryMarshal.GetReference(@base))
            {
                return Native.SetInt(base_, index, value);
            }
        }

        /// <summary>
        /// Reads the 32-bit word at <c>base + 4 * index</c>.
        /// </summary>
        /// <param name="base">Where index 0 lies.</param>
        /// <param name="index">Which word, counted from <c>base</c>; may be negative.</param>
        /// <returns>The word.</returns>
        public static uint GetDWORD(ReadOnlySpan<byte> @base, int index)
        {
            Check.Word("base", @base.Length, index, 4);
            fixed (byte* base_ = &MemoryMarshal.GetReference(@base))
            {
                return Native.GetDWORD(base_, index);
            }
        }

        /// <summary>
        /// Reads the 32-bit word at <c>base + 4 * index</c>.
        /// </summary>
        /// <param name="base">Where index 0 lies.</param>
        /// <param name="index">Which word, counted from <c>base</c>; may be negative.</param>
        /// <returns>The word.</returns>
        public static uint GetLong(ReadOnlySpan<byte> @base, int index)
        {
            Check.Word("base", @base.Length, index, 4);
            fixed (byte* base_ = &MemoryMarshal.GetReference(@base))
            {
                return Native.GetLong(base_, index);
            }
        }

        /// <summary>
        /// Stores a number at <c>base + 4 * index</c>.
        /// </summary>
        /// <param name="base">Where index 0 lies.</param>
        /// <param name="index">Which word, counted from <c>base</c>; may be negative.</param>
        /// <param name="value">The number that is shifted or stored.</param>
        /// <returns><c>value</c>.</returns>
        public static uint SetDWORD(Span<byte> @base, int index, uint value)
        {
            Check.Word("base", @base.Length, index, 4);
            fixed (byte* base_ = &MemoryMarshal.GetReference(@base))
            {
                return Native.SetDWORD(base_, index, value);
            }
        }

        /// <summary>
        /// Stores a number at <c>base + 4 * index</c>.
        /// </summary>
        /// <param name="base">Where index 0 lies.</param>
        /// <param name="index">Which word, counted from <c>base</c>; may be negative.</param>
        /// <param name="value">The number that is shifted or stored.</param>
        /// <returns><c>value</c>.</returns>
        public static uint SetLong(Span<byte> @base, int index, uint value)
        {
            Check.Word("base", @base.Length, index, 4);
            fixed (byte* base_ = &MemoryMarshal.GetReference(@base))
            {
                return Native.SetLong(base_, index, value);
            }
        }

        /// <summary>
        /// Compares bytes.
        /// </summary>
        /// <remarks>
        /// The count may reach beyond the end of the memory if a difference lies before it: no page of 4096 bytes
        /// behind that of the first difference is touched.
        /// </remarks>
        /// <param name="a">The one. At least count bytes.</param>
        /// <param name="b">The other. At least count bytes.</param>
        /// <param name="count">How many are compared; trusted up to the first difference.</param>
        /// <returns>0: They are equal, or <c>count</c> is below 1. 1: They differ.</returns>
        public static int dllComp(ReadOnlySpan<byte> a, ReadOnlySpan<byte> b, int count)
        {
            Check.Memory("a", a.Length, (long)count);
            Check.Memory("b", b.Length, (long)count);
            fixed (byte* a_ = &MemoryMarshal.GetReference(a))
            fixed (byte* b_ = &MemoryMarshal.GetReference(b))
            {
                return Native.dllComp(a_, b_, count);
            }
        }

        /// <summary>
        /// Exclusive-ors a block of words into another, despite the name: onto zeros it copies, applied twice it
        /// undoes itself.
        /// </summary>
        /// <remarks>
        /// In each row <c>dst[i] ^= src[i]</c>, word after word; then both move on by <c>pitch</c> bytes. Rows or
        /// words below 1
        /// do nothing.
        /// </remarks>
        /// <param name="dst">The block that is changed, from the first word of its first row. At least abs(pitch) *
        /// (rows - 1) + 4 * words bytes.</param>
        /// <param name="src">The block that is read. At least abs(pitch) * (rows - 1) + 4 * words bytes.</param>
        /// <param name="words">32-bit words in a row.</param>
        /// <param name="rows">Rows.</param>
        /// <param name="pitch">From the start of one row to that of the next, in both blocks; may be
        /// negative.</param>
        /// <returns>0: Always.</returns>
        public static int CopyMemoryEx(Span<byte> dst, ReadOnlySpan<byte> src, int words, int rows, int pitch)
        {
            Check.Memory("dst", dst.Length, Math.Abs((long)pitch) * ((long)rows - 1) + 4 * (long)words);
            Check.Memory("src", src.Length, Math.Abs((long)pitch) * ((long)rows - 1) + 4 * (long)words);
            fixed (byte* dst_ = &MemoryMarshal.GetReference(dst))
            fixed (byte* src_ = &MemoryMarshal.GetReference(src))
            {
                return Native.CopyMemoryEx(dst_ - Check.Begin(dst.Length, Math.Min(0, (long)pitch * ((long)rows - 1))), src_ - Check.Begin(src.Length, Math.Min(0, (long)pitch * ((long)rows - 1))), words, rows, pitch);
            }
        }

        /// <summary>
        /// Hashes a zero-terminated text, or the first 64 bytes of a longer one.
        /// </summary>
        /// <remarks>
        /// The value is the same on all targets and in all versions, so that it may be stored. In unsigned 32-bit
        /// arithmetic:
        ///
        /// <c></c><c>
        /// h1 = 0x22A83D, h2 = 0x1476E5
        /// for each byte ch before the zero, at most 64:
        ///   h2 = h2 &amp; 0x3FFFFF
        ///   h1 = (h1 &amp; 0x3FFFFF) + (h2 &gt;&gt; 1) + ch + 520 * h2
        ///   h2 = h2 + ch + 162 * h1
        /// result = (h1 &lt;&lt; 16) ^ h2
        /// </c><c></c>
        /// </remarks>
        /// <param name="text">The text; nothing behind its zero is read. At least 64 bytes.</param>
        /// <returns>The hash; that of nothing is 0xA82976E5.</returns>
        public static uint hash32A(ReadOnlySpan<byte> text)
        {
            text = Check.Text(text, 64);
            fixed (byte* text_ = &MemoryMarshal.GetReference(text))
            {
                return Native.hash32A(text_);
            }
        }

        /// <summary>
        /// Hashes bytes of a given number, by another function than <c>hash32A</c>.
        /// </summary>
        /// <remarks>
        /// Zero bytes are skipped, so that a 16-bit text of ASCII characters hashes like its 8-bit form. The value
        /// is
        /// the same on all targets and in all versions. In unsigned 32-bit arithmetic:
        ///
        /// <c></c><c>
        /// h1 = 0x12A83D, h2 = 0x1476E5
        /// for each byte ch that is not 0:
        ///   h2 = h2 &amp; 0x1FFFFF
        ///   h1 = (h1 &amp; 0x1FFFFF) + (h2 &gt;&gt; 1) + ch + 520 * h2
        ///   h2 = h2 + ch + 38 * h1
        /// result = (h1 &lt;&lt; 16) ^ h2
        /// </c><c></c>
        /// </remarks>
        /// <param name="bytes">What is hashed. At least length bytes.</param>
        /// <param name="length">How many bytes; below 1 there are none.</param>
        /// <returns>The hash; that of nothing is 0xA82976E5.</returns>
        public static uint hash32W(ReadOnlySpan<byte> bytes, int length)
        {
            Check.Memory("bytes", bytes.Length, (long)length);
            fixed (byte* bytes_ = &MemoryMarshal.GetReference(bytes))
            {
                return Native.hash32W(bytes_, length);
            }
        }

        /// <summary>
        /// Mixes two colours, alpha included.
        /// </summary>
        /// <param name="colour0">The colour at factor 0.</param>
        /// <param name="colour1">The colour at factor 1.</param>
        /// <param name="factor">How much of <c>colour1</c>: negative, or not a number, counts as 0, above 1 as
        /// 1.</param>
        /// <returns>Of each byte <c>(c0 * (256 - k) + c1 * k) &gt;&gt; 8</c> with <c>k = trunc(factor *
        /// 256)</c>.</returns>
        public static uint dwColorBlend(uint colour0, uint colour1, float factor)
        {
            return Native.dwColorBlend(colour0, colour1, factor);
        }

        /// <summary>
        /// Calls a function of one argument, which follows C's convention.
        /// </summary>
        /// <param name="fn">The function that is called.</param>
        /// <param name="a">Its arguments, each as wide as a pointer.</param>
        /// <returns>What <c>fn</c> returns.</returns>
        public static IntPtr dllMethod1(TessaroMethod1 fn, IntPtr a)
        {
            var result = Native.dllMethod1(fn, a);
            GC.KeepAlive(fn);
            return result;
        }

        /// <summary>
        /// Calls a function of four arguments, which follows C's convention.
        /// </summary>
        /// <param name="fn">The function that is called.</param>
        /// <param name="a">Its arguments, each as wide as a pointer.</param>
        /// <param name="b">Its arguments, each as wide as a pointer.</param>
        /// <param name="c">Its arguments, each as wide as a pointer.</param>
        /// <param name="d">Its arguments, each as wide as a pointer.</param>
        /// <returns>What <c>fn</c> returns.</returns>
        public static IntPtr dllMethod4(TessaroMethod4 fn, IntPtr a, IntPtr b, IntPtr c, IntPtr d)
        {
            var result = Native.dllMethod4(fn, a, b, c, d);
            GC.KeepAlive(fn);
            return result;
        }

        /// <summary>
        /// Calls a function of two arguments, which follows the library's own convention.
        /// </summary>
        /// <param name="fn">The function that is called.</param>
        /// <param name="a">Its arguments, each as wide as a pointer.</param>
        /// <param name="b">Its arguments, each as wide as a pointer.</param>
        /// <returns>What <c>fn</c> returns.</returns>
        public static IntPtr StdCallBack(TessaroCallback2 fn, IntPtr a, IntPtr b)
        {
            var result = Native.StdCallBack(fn, a, b);
            GC.KeepAlive(fn);
            return result;
        }

        /// <summary>
        /// Draws a random number below a limit.
        /// </summary>
        /// <remarks>
        /// The generator is the Mersenne Twister MT19937 of M. Matsumoto and T. Nishimura (1998) with the seeding
        /// of
        /// its revision of October 1999 (each word joins the high halves of two steps of <c>s = 69069 * s + 1</c>),
        /// seeded
        /// with the milliseconds since the system started when the library is loaded. It has one state for the
        /// process
        /// and no lock: of two threads that draw at the same moment both may get the same number, and a host that
        /// minds locks for itself.
        /// </remarks>
        /// <param name="n">The limit, unsigned. 0 divides by zero and faults.</param>
        /// <returns>The next output modulo <c>n</c>; each call draws one, also with 1.</returns>
        public static uint GetRandom(uint n)
        {
            Check.Within("n", n, 1, long.MaxValue);
            return Native.GetRandom(n);
        }

        /// <summary>
        /// Runs a function in a thread of its own, again and again, and returns when that thread has ended.
        /// </summary>
        /// <remarks>
        /// The call blocks, yielding in a loop, so <c>ThreadKill</c> has to come from another thread. The function
        /// runs at
        /// least once unless <c>ThreadKill</c> came before the thread did. Two threads must not call
        /// <c>ThreadBegin</c> at the
        /// same moment.
        /// </remarks>
        /// <param name="fn">What the thread calls.</param>
        /// <returns>0: The thread has ended, or the system could not make one. 1: There is a worker already; told
        /// at once. One that ended in another way than by <c>ThreadKill</c>, its function having left by
        /// <c>ExitThread</c> or <c>pthread_exit</c>, still counts until <c>ThreadKill</c>.</returns>
        public static int ThreadBegin(TessaroWorker fn)
        {
            var result = Native.ThreadBegin(fn);
            GC.KeepAlive(fn);
            return result;
        }

        /// <summary>
        /// Stops the worker after its current call, and waits until it has ended, without a time limit.
        /// </summary>
        /// <remarks>
        /// Then <c>ThreadBegin</c> may be called again. Called from within the worker's function it waits for ever.
        /// Two
        /// threads must not call it at the same moment.
        /// </remarks>
        /// <returns>0: The worker has ended. 1: There is no worker.</returns>
        public static int ThreadKill()
        {
            return Native.ThreadKill();
        }

        /// <summary>
        /// Offers the messages of a window to a function first, by giving the window a procedure of the library's.
        /// </summary>
        /// <remarks>
        /// Procedures are read, set and called by the system's ANSI functions (<c>GetWindowLongPtrA</c> and its
        /// like), so
        /// that texts in messages are ANSI ones. A window that is hooked a second time gets a second entry whose
        /// previous procedure is the library's own, while its messages find the first: unhook it before hooking it
        /// again.
        /// </remarks>
        /// <param name="window">A window, an <c>HWND</c>.</param>
        /// <param name="hook">What sees the messages.</param>
        /// <param name="value">A number that <c>hook</c> is given with each message.</param>
        /// <returns>0: The window is hooked. 1: The table is full, or the window has no procedure that can be read.
        /// So it is always where there are no such windows: everywhere but on Windows.</returns>
        public static int WindowProcLoad(IntPtr window, TessaroHook hook, IntPtr value)
        {
            Check.Keep(hook);
            var result = Native.WindowProcLoad(window, hook, value);
            GC.KeepAlive(hook);
            return result;
        }

        /// <summary>
        /// Gives a window its previous procedure back.
        /// </summary>
        /// <param name="window">A window, an <c>HWND</c>.</param>
        /// <returns>0: The window is unhooked. 1: The window is not hooked.</returns>
        public static int WindowProcUnload(IntPtr window)
        {
            return Native.WindowProcUnload(window);
        }

        /// <summary>
        /// A tone curve for each channel: row 0 for every pixel, columns from s.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">What is recoloured, or selects the row.</param>
        /// <param name="map">At least 256 pixels wide, of which the first 256 columns count, and one row
        /// high.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in the images that are read.</param>
        /// <param name="sy">Where the rectangle begins in the images that are read.</param>
        /// <returns>0: Done. 1: Clipping left nothing, or the map is too small.</returns>
        public static int BBIMapUC(Image dst, Image src, Image map, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            Check.Image("map", map);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            fixed (byte* map_p = map.Memory)
            {
                return Native.BBIMapUC(dst_p + dst.Offset, src_p + src.Offset, map_p + map.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// Row by the alpha of s, with the factor <c>(float)((H - 1) * 0.003921569f)</c>; columns from s.
        /// </summary>
        /// <remarks>
        /// The constant is a little above 1 / 255. With 256 rows the row is the alpha.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">What is recoloured, or selects the row.</param>
        /// <param name="map">At least 256 pixels wide, of which the first 256 columns count, and one row
        /// high.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in the images that are read.</param>
        /// <param name="sy">Where the rectangle begins in the images that are read.</param>
        /// <returns>0: Done. 1: Clipping left nothing, or the map is too small.</returns>
        public static int BBIMapUCVA(Image dst, Image src, Image map, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            Check.Image("map", map);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            fixed (byte* map_p = map.Memory)
            {
                return Native.BBIMapUCVA(dst_p + dst.Offset, src_p + src.Offset, map_p + map.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// The row of BBIMapUCVA, columns from d: s only selects the row.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">What is recoloured, or selects the row.</param>
        /// <param name="map">At least 256 pixels wide, of which the first 256 columns count, and one row
        /// high.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in the images that are read.</param>
        /// <param name="sy">Where the rectangle begins in the images that are read.</param>
        /// <returns>0: Done. 1: Clipping left nothing, or the map is too small.</returns>
        public static int BBIMapUDVA(Image dst, Image src, Image map, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            Check.Image("map", map);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            fixed (byte* map_p = map.Memory)
            {
                return Native.BBIMapUDVA(dst_p + dst.Offset, src_p + src.Offset, map_p + map.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// As BBIMapUCVA, but the alpha of d stays.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">What is recoloured, or selects the row.</param>
        /// <param name="map">At least 256 x 256 pixels.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in the images that are read.</param>
        /// <param name="sy">Where the rectangle begins in the images that are read.</param>
        /// <returns>0: Done. 1: Clipping left nothing, or the map is too small.</returns>
        public static int BBIMapMCUCVA(Image dst, Image src, Image map, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            Check.Image("map", map);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            fixed (byte* map_p = map.Memory)
            {
                return Native.BBIMapMCUCVA(dst_p + dst.Offset, src_p + src.Offset, map_p + map.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// As BBIMapUDVA, but the alpha of d stays.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">What is recoloured, or selects the row.</param>
        /// <param name="map">At least 256 x 256 pixels.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in the images that are read.</param>
        /// <param name="sy">Where the rectangle begins in the images that are read.</param>
        /// <returns>0: Done. 1: Clipping left nothing, or the map is too small.</returns>
        public static int BBIMapMCUDVA(Image dst, Image src, Image map, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            Check.Image("map", map);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            fixed (byte* map_p = map.Memory)
            {
                return Native.BBIMapMCUDVA(dst_p + dst.Offset, src_p + src.Offset, map_p + map.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// Row by blue + green + red of s, with the factor <c>(float)((H - 1) * 0.0013071896f)</c>; columns from s.
        /// </summary>
        /// <remarks>
        /// The constant is about 1 / 765.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">What is recoloured, or selects the row.</param>
        /// <param name="map">At least 256 pixels wide, of which the first 256 columns count, and one row
        /// high.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in the images that are read.</param>
        /// <param name="sy">Where the rectangle begins in the images that are read.</param>
        /// <returns>0: Done. 1: Clipping left nothing, or the map is too small.</returns>
        public static int BBIMapUCVC(Image dst, Image src, Image map, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            Check.Image("map", map);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            fixed (byte* map_p = map.Memory)
            {
                return Native.BBIMapUCVC(dst_p + dst.Offset, src_p + src.Offset, map_p + map.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// The row of BBIMapUCVC, columns from d.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">What is recoloured, or selects the row.</param>
        /// <param name="map">At least 256 pixels wide, of which the first 256 columns count, and one row
        /// high.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in the images that are read.</param>
        /// <param name="sy">Where the rectangle begins in the images that are read.</param>
        /// <returns>0: Done. 1: Clipping left nothing, or the map is too small.</returns>
        public static int BBIMapUDVC(Image dst, Image src, Image map, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            Check.Image("map", map);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            fixed (byte* map_p = map.Memory)
            {
                return Native.BBIMapUDVC(dst_p + dst.Offset, src_p + src.Offset, map_p + map.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// Row by the column in the clipped rectangle: in column i, <c>trunc(4 * i * (float)((H - 1) / (4.0 * (cx -
        /// 1))))</c>; columns from s.
        /// </summary>
        /// <remarks>
        /// So the left edge has the first row of the map and the right edge the last, or the one before it, as the
        /// rounding of the factor goes. One pixel wide, it has row 0.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">What is recoloured, or selects the row.</param>
        /// <param name="map">At least 256 pixels wide, of which the first 256 columns count, and one row
        /// high.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in the images that are read.</param>
        /// <param name="sy">Where the rectangle begins in the images that are read.</param>
        /// <returns>0: Done. 1: Clipping left nothing, or the map is too small.</returns>
        public static int BBIMapUCVX(Image dst, Image src, Image map, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            Check.Image("map", map);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            fixed (byte* map_p = map.Memory)
            {
                return Native.BBIMapUCVX(dst_p + dst.Offset, src_p + src.Offset, map_p + map.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// The same downward: in row i of the rectangle, <c>trunc(i * (float)((H - 1) / (cy - 1.0)))</c>; one pixel
        /// high, row 0.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">What is recoloured, or selects the row.</param>
        /// <param name="map">At least 256 pixels wide, of which the first 256 columns count, and one row
        /// high.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in the images that are read.</param>
        /// <param name="sy">Where the rectangle begins in the images that are read.</param>
        /// <returns>0: Done. 1: Clipping left nothing, or the map is too small.</returns>
        public static int BBIMapUCVY(Image dst, Image src, Image map, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            Check.Image("map", map);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            fixed (byte* map_p = map.Memory)
            {
                return Native.BBIMapUCVY(dst_p + dst.Offset, src_p + src.Offset, map_p + map.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// A wipe or fade in which the incoming picture's own alpha is the stencil.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="outgoing">The picture that progress 0 shows.</param>
        /// <param name="incoming">The picture that progress 1 shows.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in the images that are read.</param>
        /// <param name="sy">Where the rectangle begins in the images that are read.</param>
        /// <param name="progress">How far the transition has gone; clamped, not a number counts as 0.</param>
        /// <param name="softness">The width of the edge.</param>
        /// <param name="unused">Counts for nothing.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIStencilFlip(Image dst, Image outgoing, Image incoming, int dx, int dy, int cx, int cy, int sx, int sy, float progress, float softness, int unused)
        {
            Check.Image("dst", dst);
            Check.Image("outgoing", outgoing);
            Check.Image("incoming", incoming);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* outgoing_p = outgoing.Memory)
            fixed (byte* incoming_p = incoming.Memory)
            {
                return Native.BBIStencilFlip(dst_p + dst.Offset, outgoing_p + outgoing.Offset, incoming_p + incoming.Offset, dx, dy, cx, cy, sx, sy, progress, softness, unused);
            }
        }

        /// <summary>
        /// A wipe or fade with a stencil of its own.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="outgoing">The picture that progress 0 shows.</param>
        /// <param name="incoming">The picture that progress 1 shows.</param>
        /// <param name="stencil">Its alpha decides.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in the images that are read.</param>
        /// <param name="sy">Where the rectangle begins in the images that are read.</param>
        /// <param name="progress">How far the transition has gone; clamped, not a number counts as 0.</param>
        /// <param name="softness">The width of the edge.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIStencilFlipLE(Image dst, Image outgoing, Image incoming, Image stencil, int dx, int dy, int cx, int cy, int sx, int sy, float progress, float softness)
        {
            Check.Image("dst", dst);
            Check.Image("outgoing", outgoing);
            Check.Image("incoming", incoming);
            Check.Image("stencil", stencil);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* outgoing_p = outgoing.Memory)
            fixed (byte* incoming_p = incoming.Memory)
            fixed (byte* stencil_p = stencil.Memory)
            {
                return Native.BBIStencilFlipLE(dst_p + dst.Offset, outgoing_p + outgoing.Offset, incoming_p + incoming.Offset, stencil_p + stencil.Offset, dx, dy, cx, cy, sx, sy, progress, softness);
            }
        }

        /// <summary>
        /// As BBIStencilFlipLE, with the two pictures in the other order.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="incoming">The picture that progress 1 shows.</param>
        /// <param name="outgoing">The picture that progress 0 shows.</param>
        /// <param name="stencil">Its alpha decides.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in the images that are read.</param>
        /// <param name="sy">Where the rectangle begins in the images that are read.</param>
        /// <param name="progress">How far the transition has gone; clamped, not a number counts as 0.</param>
        /// <param name="softness">The width of the edge.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIStencilFlipLEFix(Image dst, Image incoming, Image outgoing, Image stencil, int dx, int dy, int cx, int cy, int sx, int sy, float progress, float softness)
        {
            Check.Image("dst", dst);
            Check.Image("incoming", incoming);
            Check.Image("outgoing", outgoing);
            Check.Image("stencil", stencil);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* incoming_p = incoming.Memory)
            fixed (byte* outgoing_p = outgoing.Memory)
            fixed (byte* stencil_p = stencil.Memory)
            {
                return Native.BBIStencilFlipLEFix(dst_p + dst.Offset, incoming_p + incoming.Offset, outgoing_p + outgoing.Offset, stencil_p + stencil.Offset, dx, dy, cx, cy, sx, sy, progress, softness);
            }
        }

        /// <summary>
        /// Shifts colours up or down where the stencil, the alpha of <c>src</c>, is.
        /// </summary>
        /// <remarks>
        /// d becomes mix(d, T, w): the colours of T are <c>min(max(d + 2 * c - 255, 0), 255)</c> with c the byte of
        /// <c>colour</c>, its alpha is 0. So 128 adds 1, 127 takes 1, 255 adds 255, 0 takes 255; and the alpha of
        /// <c>dst</c>
        /// falls to 0 where the stencil is opaque. w is <c>trunc(a * opacity * 0.003921569f * 256)</c> for a
        /// stencil of a,
        /// products from left to right.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The stencil.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in the images that are read.</param>
        /// <param name="sy">Where the rectangle begins in the images that are read.</param>
        /// <param name="opacity">Clamped; not a number counts as 0.</param>
        /// <param name="colour">The shift; its alpha counts for nothing.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIStencilAddsigned(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy, float opacity, uint colour)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIStencilAddsigned(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy, opacity, colour);
            }
        }

        /// <summary>
        /// Copies: <c>s</c>.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBlt(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBlt(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// Fills with a colour, all bits of it or some: <c>((d ^ invert_bits) &amp; mask) | (colour &amp;
        /// ~mask)</c>.
        /// </summary>
        /// <remarks>
        /// A mask of 0 fills; one of 0xFFFFFFFF only inverts.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="mask">Bits that the image keeps.</param>
        /// <param name="invert_bits">Bits that are inverted first; those that <c>mask</c> has not set do not
        /// show.</param>
        /// <param name="colour">A colour.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBltColor(Image dst, int dx, int dy, int cx, int cy, uint mask, uint invert_bits, uint colour)
        {
            Check.Image("dst", dst);
            fixed (byte* dst_p = dst.Memory)
            {
                return Native.BBIBltColor(dst_p + dst.Offset, dx, dy, cx, cy, mask, invert_bits, colour);
            }
        }

        /// <summary>
        /// Mixes a colour into a rectangle, with the weight <c>trunc(factor * 256)</c>.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="colour">A colour.</param>
        /// <param name="factor">How much of the colour: 1 and above fill.</param>
        /// <returns>0: Done. 1: Clipping left nothing, or the factor is negative or not a number.</returns>
        public static int BBIBltColorBlend(Image dst, int dx, int dy, int cx, int cy, uint colour, float factor)
        {
            Check.Image("dst", dst);
            fixed (byte* dst_p = dst.Memory)
            {
                return Native.BBIBltColorBlend(dst_p + dst.Offset, dx, dy, cx, cy, colour, factor);
            }
        }

        /// <summary>
        /// Combines alphas and keeps the colours of <c>dst</c>.
        /// </summary>
        /// <remarks>
        /// With <c>da</c> the alpha of <c>d</c> and <c>a</c> that of <c>s</c>, these act if their flags are on, in
        /// this order, the reverse
        /// of that of the arguments:
        ///
        /// 1. <c>subtract_from_dest</c>: <c>a = da - a</c>
        /// 2. <c>invert</c>: <c>a = 255 - a</c>
        /// 3. <c>min_with_dest</c>: <c>a = min(a, da)</c>
        /// 4. <c>max_with_dest</c>: <c>a = max(a, da)</c>
        ///
        /// The low eight bits of <c>a</c> are stored: what lies outside 0 to 255 wraps (10 - 20 gives 246). With
        /// the last
        /// two on <c>da</c> stays.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="max_with_dest">Step 4.</param>
        /// <param name="min_with_dest">Step 3.</param>
        /// <param name="invert">Step 2.</param>
        /// <param name="subtract_from_dest">Step 1.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBltAlpha(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy, int max_with_dest, int min_with_dest, int invert, int subtract_from_dest)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltAlpha(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy, max_with_dest, min_with_dest, invert, subtract_from_dest);
            }
        }

        /// <summary>
        /// Adds: <c>min(d + s, 255)</c>.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBltAdd(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltAdd(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// Multiplies: <c>(d * s + 255) &gt;&gt; 8</c>.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBltMul(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltMul(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// Subtracts: <c>max(d - s, 0)</c>.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBltSub(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltSub(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// Takes the difference: <c>abs(d - s)</c>, despite the name no exclusive-or.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBltXor(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltXor(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// Takes the signed difference: <c>(d - s + 128) &amp; 255</c>, which <c>BBIBltXor3</c> with the same
        /// source undoes.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBltXor2(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltXor2(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// Adds a signed difference: <c>(d + s - 128) &amp; 255</c>.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBltXor3(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltXor3(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// Copies inverted: <c>255 - s</c>, alpha too.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBltNot(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltNot(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// Takes the darker: <c>min(d, s)</c>.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBltMin(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltMin(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// Takes the brighter: <c>max(d, s)</c>.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBltMax(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltMax(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// Copies all pixels but those that equal a key.
        /// </summary>
        /// <remarks>
        /// The key is the word at column 0, row 0 of the source image, wherever the rectangle lies, read once
        /// before
        /// the first pixel is written. Whole words are compared, alpha included.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBltKeying(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltKeying(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// Cross-fades: a mix with the weight <c>level</c>, of all pixels or of all but those that equal a key.
        /// </summary>
        /// <remarks>
        /// At 255 and above it is <c>BBIBlt</c>, with <c>keyed</c> on <c>BBIBltKeying</c>. At 0 and below nothing
        /// changes; the result
        /// is 0, or 1 where clipping leaves nothing.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="keyed">Whether pixels that equal the key of <c>BBIBltKeying</c> are left out.</param>
        /// <param name="level">How much of the source.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBltKeyingFX(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy, int keyed, int level)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltKeyingFX(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy, keyed, level);
            }
        }

        /// <summary>
        /// Mixes a source in by its own alpha <c>a</c>, in one of two ways.
        /// </summary>
        /// <remarks>
        /// - <c>whole</c> off: 0 keeps <c>d</c>, 255 gives <c>s</c>, between them <c>(s * a + d * (255 - a))
        /// &gt;&gt; 8</c>, which darkens a
        ///   little.
        /// - <c>whole</c> on: a mix with the weight <c>a * 256 / 255</c>, which does not; a byte may be greater by
        /// one or two.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="whole">Whether weights add up to 256.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBltBlend(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy, int whole)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltBlend(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy, whole);
            }
        }

        /// <summary>
        /// Mixes half and half: <c>(s &gt;&gt; 1) + (d &gt;&gt; 1)</c>, where two odd bytes lose one.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBltHalfBlend(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltHalfBlend(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// Shows alpha as grey: all four bytes become the alpha of <c>s</c>.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBltShiftAlpha(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltShiftAlpha(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// Marks pixels: where the whole word <c>s</c> is above 128, <c>(~d &amp; 0x007FC0C0) | 0x00800000</c>,
        /// elsewhere <c>d</c>.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBltShiftBlock(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltShiftBlock(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// Fills an image from a bottom-up bitmap of one bit a pixel.
        /// </summary>
        /// <remarks>
        /// Row y of the image (0 is the top) comes from <c>bits + (height - 1 - y) * stride</c>, here and in the
        /// three
        /// functions below. An image without pixels is left alone. Each row starts with a new byte, the first of
        /// eight
        /// pixels in its highest bit; a byte is read once for its eight pixels.
        /// </remarks>
        /// <param name="image">The image that is filled.</param>
        /// <param name="bits">The bottom row. At least abs(stride) * (image.height - 1) + ceil_div(image.width, 8)
        /// bytes.</param>
        /// <param name="palette">The colours of a 0 and a 1. At least 2 words.</param>
        /// <param name="stride">From the start of a row to that of the row above it; may be 0 or negative.</param>
        /// <returns>0: Always.</returns>
        public static int BBIBltTo32from1(Image image, ReadOnlySpan<byte> bits, ReadOnlySpan<uint> palette, int stride)
        {
            var image_ = Check.Image("image", image);
            Check.Memory("bits", bits.Length, Math.Abs((long)stride) * (image_.Height - 1) + Check.CeilDiv(image_.Width, 8));
            Check.Memory("palette", 4L * palette.Length, 8);
            fixed (byte* image_p = image.Memory)
            fixed (byte* bits_ = &MemoryMarshal.GetReference(bits))
            fixed (uint* palette_ = &MemoryMarshal.GetReference(palette))
            {
                return Native.BBIBltTo32from1(image_p + image.Offset, bits_ - Check.Begin(bits.Length, Math.Min(0, (long)stride * (image_.Height - 1))), palette_, stride);
            }
        }

        /// <summary>
        /// Fills an image from a bottom-up bitmap of one byte a pixel, the number of a colour.
        /// </summary>
        /// <param name="image">The image that is filled.</param>
        /// <param name="bits">The bottom row. At least abs(stride) * (image.height - 1) + image.width
        /// bytes.</param>
        /// <param name="palette">The colours. At least 256 words.</param>
        /// <param name="stride">From the start of a row to that of the row above it; may be 0 or negative.</param>
        /// <returns>0: Always.</returns>
        public static int BBIBltTo32from8(Image image, ReadOnlySpan<byte> bits, ReadOnlySpan<uint> palette, int stride)
        {
            var image_ = Check.Image("image", image);
            Check.Memory("bits", bits.Length, Math.Abs((long)stride) * (image_.Height - 1) + image_.Width);
            Check.Memory("palette", 4L * palette.Length, 1024);
            fixed (byte* image_p = image.Memory)
            fixed (byte* bits_ = &MemoryMarshal.GetReference(bits))
            fixed (uint* palette_ = &MemoryMarshal.GetReference(palette))
            {
                return Native.BBIBltTo32from8(image_p + image.Offset, bits_ - Check.Begin(bits.Length, Math.Min(0, (long)stride * (image_.Height - 1))), palette_, stride);
            }
        }

        /// <summary>
        /// Fills an image from a bottom-up bitmap of blue, green and red; alpha becomes 0.
        /// </summary>
        /// <param name="image">The image that is filled.</param>
        /// <param name="bits">The bottom row. At least abs(stride) * (image.height - 1) + 3 * image.width
        /// bytes.</param>
        /// <param name="stride">From the start of a row to that of the row above it; may be 0 or negative.</param>
        /// <returns>0: Always.</returns>
        public static int BBIBltTo32from24(Image image, ReadOnlySpan<byte> bits, int stride)
        {
            var image_ = Check.Image("image", image);
            Check.Memory("bits", bits.Length, Math.Abs((long)stride) * (image_.Height - 1) + 3 * image_.Width);
            fixed (byte* image_p = image.Memory)
            fixed (byte* bits_ = &MemoryMarshal.GetReference(bits))
            {
                return Native.BBIBltTo32from24(image_p + image.Offset, bits_ - Check.Begin(bits.Length, Math.Min(0, (long)stride * (image_.Height - 1))), stride);
            }
        }

        /// <summary>
        /// Fills an image from a bottom-up bitmap of whole words, alpha included.
        /// </summary>
        /// <param name="image">The image that is filled.</param>
        /// <param name="bits">The bottom row. At least abs(stride) * (image.height - 1) + 4 * image.width
        /// bytes.</param>
        /// <param name="stride">From the start of a row to that of the row above it; may be 0 or negative.</param>
        /// <returns>0: Always.</returns>
        public static int BBIBltTo32from32(Image image, ReadOnlySpan<byte> bits, int stride)
        {
            var image_ = Check.Image("image", image);
            Check.Memory("bits", bits.Length, Math.Abs((long)stride) * (image_.Height - 1) + 4 * image_.Width);
            fixed (byte* image_p = image.Memory)
            fixed (byte* bits_ = &MemoryMarshal.GetReference(bits))
            {
                return Native.BBIBltTo32from32(image_p + image.Offset, bits_ - Check.Begin(bits.Length, Math.Min(0, (long)stride * (image_.Height - 1))), stride);
            }
        }

        /// <summary>
        /// Unpacks pixels of a format.
        /// </summary>
        /// <param name="dst">The pixels. At least count words.</param>
        /// <param name="src">The packed pixels. At least count * bytes_of(format) bytes.</param>
        /// <param name="count">How many.</param>
        /// <param name="format">How the pixels are packed.</param>
        /// <returns>0: Always; an unknown format does nothing.</returns>
        public static int BBIBltToBBIGet(Span<uint> dst, ReadOnlySpan<byte> src, int count, int format)
        {
            Check.Memory("dst", 4L * dst.Length, 4 * (long)count);
            Check.Memory("src", src.Length, (long)count * Check.BytesOf((long)format));
            fixed (uint* dst_ = &MemoryMarshal.GetReference(dst))
            fixed (byte* src_ = &MemoryMarshal.GetReference(src))
            {
                return Native.BBIBltToBBIGet(dst_, src_, count, format);
            }
        }

        /// <summary>
        /// Packs pixels as 888.
        /// </summary>
        /// <param name="dst">The packed pixels. At least 3 * count bytes.</param>
        /// <param name="src">The pixels. At least count words.</param>
        /// <param name="count">How many.</param>
        /// <returns>0: Always.</returns>
        public static int BBIBltTo24As888(Span<byte> dst, ReadOnlySpan<uint> src, int count)
        {
            Check.Memory("dst", dst.Length, 3 * (long)count);
            Check.Memory("src", 4L * src.Length, 4 * (long)count);
            fixed (byte* dst_ = &MemoryMarshal.GetReference(dst))
            fixed (uint* src_ = &MemoryMarshal.GetReference(src))
            {
                return Native.BBIBltTo24As888(dst_, src_, count);
            }
        }

        /// <summary>
        /// Packs pixels as 4444, alpha included.
        /// </summary>
        /// <param name="dst">The packed pixels. At least count halfwords.</param>
        /// <param name="src">The pixels. At least count words.</param>
        /// <param name="count">How many.</param>
        /// <returns>0: Always.</returns>
        public static int BBIBltTo16As444(Span<byte> dst, ReadOnlySpan<uint> src, int count)
        {
            Check.Memory("dst", dst.Length, 2 * (long)count);
            Check.Memory("src", 4L * src.Length, 4 * (long)count);
            fixed (byte* dst_ = &MemoryMarshal.GetReference(dst))
            fixed (uint* src_ = &MemoryMarshal.GetReference(src))
            {
                return Native.BBIBltTo16As444(dst_, src_, count);
            }
        }

        /// <summary>
        /// Packs pixels as 565.
        /// </summary>
        /// <param name="dst">The packed pixels. At least count halfwords.</param>
        /// <param name="src">The pixels. At least count words.</param>
        /// <param name="count">How many.</param>
        /// <returns>0: Always.</returns>
        public static int BBIBltTo16As565(Span<byte> dst, ReadOnlySpan<uint> src, int count)
        {
            Check.Memory("dst", dst.Length, 2 * (long)count);
            Check.Memory("src", 4L * src.Length, 4 * (long)count);
            fixed (byte* dst_ = &MemoryMarshal.GetReference(dst))
            fixed (uint* src_ = &MemoryMarshal.GetReference(src))
            {
                return Native.BBIBltTo16As565(dst_, src_, count);
            }
        }

        /// <summary>
        /// Packs pixels as 555.
        /// </summary>
        /// <param name="dst">The packed pixels. At least count halfwords.</param>
        /// <param name="src">The pixels. At least count words.</param>
        /// <param name="count">How many.</param>
        /// <returns>0: Always.</returns>
        public static int BBIBltTo16As555(Span<byte> dst, ReadOnlySpan<uint> src, int count)
        {
            Check.Memory("dst", dst.Length, 2 * (long)count);
            Check.Memory("src", 4L * src.Length, 4 * (long)count);
            fixed (byte* dst_ = &MemoryMarshal.GetReference(dst))
            fixed (uint* src_ = &MemoryMarshal.GetReference(src))
            {
                return Native.BBIBltTo16As555(dst_, src_, count);
            }
        }

        /// <summary>
        /// Packs pixels as 1555.
        /// </summary>
        /// <param name="dst">The packed pixels. At least count halfwords.</param>
        /// <param name="src">The pixels. At least count words.</param>
        /// <param name="count">How many.</param>
        /// <returns>0: Always.</returns>
        public static int BBIBltTo16As1555(Span<byte> dst, ReadOnlySpan<uint> src, int count)
        {
            Check.Memory("dst", dst.Length, 2 * (long)count);
            Check.Memory("src", 4L * src.Length, 4 * (long)count);
            fixed (byte* dst_ = &MemoryMarshal.GetReference(dst))
            fixed (uint* src_ = &MemoryMarshal.GetReference(src))
            {
                return Native.BBIBltTo16As1555(dst_, src_, count);
            }
        }

        /// <summary>
        /// Takes the blue byte of each pixel: the grey of a grey picture; no luminance is formed.
        /// </summary>
        /// <param name="dst">A byte a pixel. At least count bytes.</param>
        /// <param name="src">The pixels. At least count words.</param>
        /// <param name="count">How many.</param>
        /// <returns>0: Always.</returns>
        public static int BBIBltTo8AsGray(Span<byte> dst, ReadOnlySpan<uint> src, int count)
        {
            Check.Memory("dst", dst.Length, (long)count);
            Check.Memory("src", 4L * src.Length, 4 * (long)count);
            fixed (byte* dst_ = &MemoryMarshal.GetReference(dst))
            fixed (uint* src_ = &MemoryMarshal.GetReference(src))
            {
                return Native.BBIBltTo8AsGray(dst_, src_, count);
            }
        }

        /// <summary>
        /// Takes the alpha of each pixel.
        /// </summary>
        /// <param name="dst">A byte a pixel. At least count bytes.</param>
        /// <param name="src">The pixels. At least count words.</param>
        /// <param name="count">How many.</param>
        /// <returns>0: Always.</returns>
        public static int BBIBltTo8AsAlpha(Span<byte> dst, ReadOnlySpan<uint> src, int count)
        {
            Check.Memory("dst", dst.Length, (long)count);
            Check.Memory("src", 4L * src.Length, 4 * (long)count);
            fixed (byte* dst_ = &MemoryMarshal.GetReference(dst))
            fixed (uint* src_ = &MemoryMarshal.GetReference(src))
            {
                return Native.BBIBltTo8AsAlpha(dst_, src_, count);
            }
        }

        /// <summary>
        /// Packs one bit a pixel, 1 where the blue byte is at least 128.
        /// </summary>
        /// <remarks>
        /// A byte is written when its pixels have been read, the first of eight in its highest bit; bits of the
        /// last
        /// byte that belong to no pixel are 0.
        /// </remarks>
        /// <param name="dst">The bits. At least ceil_div(count, 8) bytes.</param>
        /// <param name="src">The pixels. At least count words.</param>
        /// <param name="count">How many.</param>
        /// <returns>0: Always.</returns>
        public static int BBIBltTo1(Span<byte> dst, ReadOnlySpan<uint> src, int count)
        {
            Check.Memory("dst", dst.Length, Check.CeilDiv((long)count, 8));
            Check.Memory("src", 4L * src.Length, 4 * (long)count);
            fixed (byte* dst_ = &MemoryMarshal.GetReference(dst))
            fixed (uint* src_ = &MemoryMarshal.GetReference(src))
            {
                return Native.BBIBltTo1(dst_, src_, count);
            }
        }

        /// <summary>
        /// Mixes pixels with a colour and packs them: factor 1 keeps the pixel, 0 gives the colour.
        /// </summary>
        /// <param name="dst">The packed pixels. At least count * bytes_of(format) bytes.</param>
        /// <param name="src">The pixels. At least count words.</param>
        /// <param name="count">How many.</param>
        /// <param name="format">How the pixels are packed.</param>
        /// <param name="colour">What is mixed in where the factor is below 1.</param>
        /// <param name="factor">The weight of the pixel: negative, or not a number, counts as 0, above 1 as
        /// 1.</param>
        /// <returns>0: Always; an unknown format does nothing.</returns>
        public static int BBIBltToX(Span<byte> dst, ReadOnlySpan<uint> src, int count, int format, uint colour, float factor)
        {
            Check.Memory("dst", dst.Length, (long)count * Check.BytesOf((long)format));
            Check.Memory("src", 4L * src.Length, 4 * (long)count);
            fixed (byte* dst_ = &MemoryMarshal.GetReference(dst))
            fixed (uint* src_ = &MemoryMarshal.GetReference(src))
            {
                return Native.BBIBltToX(dst_, src_, count, format, colour, factor);
            }
        }

        /// <summary>
        /// Mixes two runs of pixels and packs the result: factor 0 gives those of <c>a</c>, 1 those of <c>b</c>.
        /// </summary>
        /// <param name="dst">The packed pixels. At least count * bytes_of(format) bytes.</param>
        /// <param name="a">The pixels with the weight <c>256 - k</c>. At least count words.</param>
        /// <param name="b">The pixels with the weight <c>k</c>. At least count words.</param>
        /// <param name="count">How many.</param>
        /// <param name="format">How the pixels are packed.</param>
        /// <param name="factor">How much of <c>b</c>: negative, or not a number, counts as 0, above 1 as 1.</param>
        /// <returns>0: Done. 1: The format is unknown, whatever the count.</returns>
        public static int BBIBltToXF(Span<byte> dst, ReadOnlySpan<uint> a, ReadOnlySpan<uint> b, int count, int format, float factor)
        {
            Check.Memory("dst", dst.Length, (long)count * Check.BytesOf((long)format));
            Check.Memory("a", 4L * a.Length, 4 * (long)count);
            Check.Memory("b", 4L * b.Length, 4 * (long)count);
            fixed (byte* dst_ = &MemoryMarshal.GetReference(dst))
            fixed (uint* a_ = &MemoryMarshal.GetReference(a))
            fixed (uint* b_ = &MemoryMarshal.GetReference(b))
            {
                return Native.BBIBltToXF(dst_, a_, b_, count, format, factor);
            }
        }

        /// <summary>
        /// Changes saturation, looks levels up, mixes with a colour and packs.
        /// </summary>
        /// <remarks>
        /// Each pixel in this order, its alpha untouched by the first two steps:
        ///
        /// 1. Unless the saturation is exactly 1: with <c>m = trunc(saturation * 1024)</c> and <c>t = (1024 - m) /
        /// 3</c>,
        ///   truncated toward zero, each colour byte c becomes <c>(c * m &gt;&gt; 10) + ((B + G + R) * t &gt;&gt;
        /// 10)</c>, kept within
        ///   0 to 255. At 0 that is a grey a little below the mean.
        /// 2. With <c>use_table</c> on: B, G and R become <c>table[B]</c>, <c>table[256 + G]</c> and <c>table[512 +
        /// R]</c>.
        /// 3. The mix with the colour, and the packing, as by <c>BBIBltToX</c>.
        /// </remarks>
        /// <param name="dst">The packed pixels. At least count * bytes_of(format) bytes.</param>
        /// <param name="src">The pixels. At least count words.</param>
        /// <param name="count">How many.</param>
        /// <param name="format">How the pixels are packed.</param>
        /// <param name="colour">What is mixed in where the factor is below 1.</param>
        /// <param name="factor">The weight of the pixel: negative, or not a number, counts as 0, above 1 as
        /// 1.</param>
        /// <param name="saturation">Negative, or not a number, counts as 0, above 256 as 256.</param>
        /// <param name="use_table">Whether levels are looked up.</param>
        /// <param name="table">Tables for blue, green and red, 256 bytes each; only read with <c>use_table</c> on.
        /// At least 768 bytes.</param>
        /// <returns>0: Done. 1: The format is unknown, whatever the count.</returns>
        public static int BBIBltToF(Span<byte> dst, ReadOnlySpan<uint> src, int count, int format, uint colour, float factor, float saturation, int use_table, ReadOnlySpan<byte> table)
        {
            Check.Memory("dst", dst.Length, (long)count * Check.BytesOf((long)format));
            Check.Memory("src", 4L * src.Length, 4 * (long)count);
            Check.Memory("table", table.Length, 768);
            fixed (byte* dst_ = &MemoryMarshal.GetReference(dst))
            fixed (uint* src_ = &MemoryMarshal.GetReference(src))
            fixed (byte* table_ = &MemoryMarshal.GetReference(table))
            {
                return Native.BBIBltToF(dst_, src_, count, format, colour, factor, saturation, use_table, table_);
            }
        }

        /// <summary>
        /// Compares two images, or tests the first.
        /// </summary>
        /// <remarks>
        /// Both have to be images in every mode: their sizes are compared first, also where only the pixels of
        /// <c>a</c> are
        /// read.
        /// </remarks>
        /// <param name="a">The images that are compared.</param>
        /// <param name="b">The images that are compared.</param>
        /// <param name="mode">What is tested.</param>
        /// <returns>0: The test holds for every pixel, or the images have no rows. 1: It fails for one, or the
        /// sizes differ. 2: The mode is unknown, and the images are of one size and have rows.</returns>
        public static int BBICompare(Image a, Image b, int mode)
        {
            Check.Image("a", a);
            Check.Image("b", b);
            fixed (byte* a_p = a.Memory)
            fixed (byte* b_p = b.Memory)
            {
                return Native.BBICompare(a_p + a.Offset, b_p + b.Offset, mode);
            }
        }

        /// <summary>
        /// Counts pixels that differ, but not by much in every byte.
        /// </summary>
        /// <remarks>
        /// With <c>p</c> and <c>q</c> the pixels of both images under the mask, a pixel counts if <c>p</c> is not
        /// <c>q</c> and at least
        /// one of the four bytes differs by no more than the tolerance. Bytes that are equal or masked away differ
        /// by
        /// 0: so with a byte masked away all pixels that differ count; pixels that differ by more in all four bytes
        /// do
        /// not.
        /// </remarks>
        /// <param name="a">The images that are compared.</param>
        /// <param name="b">The images that are compared.</param>
        /// <param name="mask">The bits that are compared.</param>
        /// <param name="tolerance">Kept within these limits.</param>
        /// <returns>The number of such pixels; 0 for images without pixels. -1: The sizes differ.</returns>
        public static int BBICompareAny(Image a, Image b, uint mask, int tolerance)
        {
            Check.Image("a", a);
            Check.Image("b", b);
            fixed (byte* a_p = a.Memory)
            fixed (byte* b_p = b.Memory)
            {
                return Native.BBICompareAny(a_p + a.Offset, b_p + b.Offset, mask, tolerance);
            }
        }

        /// <summary>
        /// Counts the different colours of an image, alpha aside.
        /// </summary>
        /// <param name="image">The image that is read.</param>
        /// <param name="reserved">Has to be 0.</param>
        /// <returns>The number of colours; 0 also if <c>reserved</c> is not 0, or if working memory (at most 2 MiB)
        /// cannot be had.</returns>
        public static int BBIColorCount(Image image, int reserved)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIColorCount(image_p + image.Offset, reserved);
            }
        }

        /// <summary>
        /// Collects the colours of an image into a palette, and replaces each pixel's alpha by the number of its
        /// colour there.
        /// </summary>
        /// <remarks>
        /// Colours are collected in order of appearance, with alpha 0, until the palette is full; pixels whose
        /// colour
        /// found no room get an alpha of 0. Entries of the palette that no colour takes are left alone.
        /// </remarks>
        /// <param name="image">The image that is changed.</param>
        /// <param name="palette">The colours. At least max words.</param>
        /// <param name="max">The room in the palette; otherwise nothing is done and 0 returned.</param>
        /// <returns>The colours collected, plus the pixels whose colour found no room: above <c>max</c> the palette
        /// was too small. 0 for an image without pixels.</returns>
        public static int BBIColorPalette(Image image, Span<uint> palette, int max)
        {
            Check.Image("image", image);
            Check.Memory("palette", 4L * palette.Length, 4 * (long)max);
            fixed (byte* image_p = image.Memory)
            fixed (uint* palette_ = &MemoryMarshal.GetReference(palette))
            {
                return Native.BBIColorPalette(image_p + image.Offset, palette_, max);
            }
        }

        /// <summary>
        /// Finds the smallest rectangle around all content, that is pixels with <c>(pixel &amp; mask) != key</c>.
        /// </summary>
        /// <remarks>
        /// It is told by its first column and row and its size (<c>BBIPaint</c> tells last column and row); without
        /// content
        /// it is 0, 0, 1, 1.
        /// </remarks>
        /// <param name="image">The image that is read.</param>
        /// <param name="reserved">Has to be 0.</param>
        /// <param name="mask">The bits of a pixel that are compared. Bits of <c>key</c> that it has not set make
        /// every pixel content.</param>
        /// <param name="key">What is no content.</param>
        /// <param name="left">The first column.</param>
        /// <param name="top">The first row.</param>
        /// <param name="cx">The number of columns.</param>
        /// <param name="cy">The number of rows.</param>
        /// <returns>0: Done. 1: <c>reserved</c> is not 0.</returns>
        public static int BBITrim(Image image, int reserved, uint mask, uint key, ref int left, ref int top, ref int cx, ref int cy)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            fixed (int* left_ = &left)
            fixed (int* top_ = &top)
            fixed (int* cx_ = &cx)
            fixed (int* cy_ = &cy)
            {
                return Native.BBITrim(image_p + image.Offset, reserved, mask, key, left_, top_, cx_, cy_);
            }
        }

        /// <summary>
        /// Fills an image.
        /// </summary>
        /// <param name="image">The image that is changed.</param>
        /// <param name="red">The bytes of a colour; below 0 counts as 0, above 255 as 255.</param>
        /// <param name="green">The bytes of a colour; below 0 counts as 0, above 255 as 255.</param>
        /// <param name="blue">The bytes of a colour; below 0 counts as 0, above 255 as 255.</param>
        /// <param name="alpha">The bytes of a colour; below 0 counts as 0, above 255 as 255.</param>
        /// <returns>0: Done. 1: The image has no pixels.</returns>
        public static int BBIClear(Image image, int red, int green, int blue, int alpha)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIClear(image_p + image.Offset, red, green, blue, alpha);
            }
        }

        /// <summary>
        /// Fills an image and keeps its alpha.
        /// </summary>
        /// <param name="image">The image that is changed.</param>
        /// <param name="red">The bytes of a colour; below 0 counts as 0, above 255 as 255.</param>
        /// <param name="green">The bytes of a colour; below 0 counts as 0, above 255 as 255.</param>
        /// <param name="blue">The bytes of a colour; below 0 counts as 0, above 255 as 255.</param>
        /// <returns>0: Done. 1: The image has no pixels.</returns>
        public static int BBIClearRGB(Image image, int red, int green, int blue)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIClearRGB(image_p + image.Offset, red, green, blue);
            }
        }

        /// <summary>
        /// Fills some bits of an image: <c>(pixel &amp; mask) | (colour &amp; ~mask)</c>.
        /// </summary>
        /// <param name="image">The image that is changed.</param>
        /// <param name="red">The bytes of a colour; below 0 counts as 0, above 255 as 255.</param>
        /// <param name="green">The bytes of a colour; below 0 counts as 0, above 255 as 255.</param>
        /// <param name="blue">The bytes of a colour; below 0 counts as 0, above 255 as 255.</param>
        /// <param name="alpha">The bytes of a colour; below 0 counts as 0, above 255 as 255.</param>
        /// <param name="mask">The bits that the image keeps.</param>
        /// <returns>0: Done. 1: The image has no pixels.</returns>
        public static int BBIClearMask(Image image, int red, int green, int blue, int alpha, uint mask)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIClearMask(image_p + image.Offset, red, green, blue, alpha, mask);
            }
        }

        /// <summary>
        /// Mirrors an image in place, left to right.
        /// </summary>
        /// <param name="image">The image that is changed.</param>
        /// <returns>0: Done. 1: The image has no pixels.</returns>
        public static int BBIMirror(Image image)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIMirror(image_p + image.Offset);
            }
        }

        /// <summary>
        /// Mirrors an image in place, top to bottom.
        /// </summary>
        /// <param name="image">The image that is changed.</param>
        /// <returns>0: Done. 1: The image has no pixels.</returns>
        public static int BBIVMirror(Image image)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIVMirror(image_p + image.Offset);
            }
        }

        /// <summary>
        /// Turns an image into another.
        /// </summary>
        /// <remarks>
        /// The two must not share pixels: what <c>dst</c> holds afterwards is undefined if they do.
        /// </remarks>
        /// <param name="dst">The turned image, of the size of <c>src</c>, with width and height exchanged for a
        /// quarter.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="mode">Which turn.</param>
        /// <returns>0: Done; also, without anything done, for any other mode, whatever the sizes, and for images
        /// without pixels whose sizes fit. 1: The sizes do not fit.</returns>
        public static int BBIRotation(Image dst, Image src, int mode)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIRotation(dst_p + dst.Offset, src_p + src.Offset, mode);
            }
        }

        /// <summary>
        /// Makes a colour transparent and all others opaque.
        /// </summary>
        /// <remarks>
        /// Alpha becomes 0 for pixels of the key's colour and 255 for all others; alphas are not compared.
        /// </remarks>
        /// <param name="image">The image that is changed.</param>
        /// <param name="key">The colour; its alpha does not count.</param>
        /// <returns>0: Done. 1: The image has no pixels.</returns>
        public static int BBIKeying(Image image, uint key)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIKeying(image_p + image.Offset, key);
            }
        }

        /// <summary>
        /// Gives transparent pixels the colour of their neighbours, so that the edges of a keyed picture stay clean
        /// when it is scaled.
        /// </summary>
        /// <remarks>
        /// A pixel with alpha 0 gets the mean of blue, of green and of red, truncated, of those of its neighbours
        /// left, right, above and below whose alpha is not 0; its alpha stays 0. Without such a neighbour it stays
        /// as
        /// it is.
        /// </remarks>
        /// <param name="image">The image that is changed.</param>
        /// <returns>0: Done. 1: The image has no pixels.</returns>
        public static int BBIKeyingFilter(Image image)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIKeyingFilter(image_p + image.Offset);
            }
        }

        /// <summary>
        /// Does nothing.
        /// </summary>
        /// <param name="a">Not looked at.</param>
        /// <param name="b">Not looked at.</param>
        /// <param name="c">Not looked at.</param>
        /// <returns>0: Always.</returns>
        public static int BBIAntiAreas(int a, int b, int c)
        {
            return Native.BBIAntiAreas(a, b, c);
        }

        /// <summary>
        /// Fills an area: the pixel at a place and all that are connected to it through their four neighbours and
        /// equal it in all 32 bits.
        /// </summary>
        /// <remarks>
        /// It tells the rectangle filled by its first and last column and row (<c>BBITrim</c> tells a size).
        /// </remarks>
        /// <param name="image">The image that is changed.</param>
        /// <param name="x">The column of a pixel of the area.</param>
        /// <param name="y">Its row.</param>
        /// <param name="colour">What the area takes.</param>
        /// <param name="left">The first column.</param>
        /// <param name="top">The first row.</param>
        /// <param name="right">The last column.</param>
        /// <param name="bottom">The last row.</param>
        /// <returns>0: Done. 1: The place lies outside or has the colour already, or working memory cannot be had:
        /// at most <c>6 * height * ((width + 1) / 2)</c> bytes, of which only what the fill needs is
        /// touched.</returns>
        public static int BBIPaint(Image image, int x, int y, uint colour, ref int left, ref int top, ref int right, ref int bottom)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            fixed (int* left_ = &left)
            fixed (int* top_ = &top)
            fixed (int* right_ = &right)
            fixed (int* bottom_ = &bottom)
            {
                return Native.BBIPaint(image_p + image.Offset, x, y, colour, left_, top_, right_, bottom_);
            }
        }

        /// <summary>
        /// Gives a source the brightness of what it covers.
        /// </summary>
        /// <remarks>
        /// With the brightness <c>(B + G + R + 1) / 3</c>, each colour becomes <c>s</c> plus the brightness of
        /// <c>d</c> less that of
        /// <c>s</c>, kept within 0 to 255. The alpha of <c>d</c> stays.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBltTone(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltTone(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// Mixes a source in the more, the closer its colour is to what it covers, compared at equal brightness.
        /// </summary>
        /// <remarks>
        /// With the brightness <c>(B + G + R) / 3</c>, <c>e = d - s</c> plus the brightness of <c>s</c> less that
        /// of <c>d</c> for each
        /// colour, and <c>distance</c> the square root of the sum of the three squares of <c>e</c>, truncated, all
        /// four bytes
        /// are mixed with the weight <c>trunc(256 - distance * factor)</c>, formed in double precision and kept
        /// within 0 to
        /// 256; 0 if it is not a number.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="factor">How fast the weight falls: at 1 it is 0 at a distance of 256. 0 and below
        /// copy.</param>
        /// <returns>0: Done. 1: Clipping left nothing.</returns>
        public static int BBIBltToneWB(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy, float factor)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltToneWB(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy, factor);
            }
        }

        /// <summary>
        /// Lays a source over a destination that may itself be partly transparent.
        /// </summary>
        /// <remarks>
        /// With <c>a</c> the alpha of <c>s</c> and <c>da</c> that of <c>d</c>, the first of these that applies:
        ///
        /// 1. <c>a</c> is 0: <c>d</c> stays.
        /// 2. <c>a</c> is 255, or <c>da</c> is 0: <c>s</c> replaces it, whatever the opacity.
        /// 3. The colours are mixed with the weight <c>trunc(a * opacity * 0.003921569f * 256)</c>, formed in
        /// double
        ///   precision from the two floats (the constant is a little above 1 / 255); the alpha becomes
        ///   <c>da + (255 - da) * a / 255</c>.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="dy">Left column and top row of the rectangle in <c>dst</c>.</param>
        /// <param name="cx">Width and height of the rectangle.</param>
        /// <param name="cy">Width and height of the rectangle.</param>
        /// <param name="sx">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="sy">Left column and top row of the rectangle in <c>src</c>.</param>
        /// <param name="opacity">Weakens the partly transparent pixels of the source; above 1 counts as 1.</param>
        /// <returns>0: Done. 1: Clipping left nothing, or the opacity is negative or not a number.</returns>
        public static int BBIBltTrueBlend(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy, float opacity)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltTrueBlend(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy, opacity);
            }
        }

        /// <summary>
        /// Stretches the levels of each channel, blue by the bounds of red and red by those of blue.
        /// </summary>
        /// <remarks>
        /// The crossing does not show where the two have the same histogram.
        /// </remarks>
        /// <param name="image">The image.</param>
        /// <param name="threshold">How many pixels at either end are given up; a negative one makes the bounds 0
        /// and 255.</param>
        /// <returns>0: Done. 1: The image has no pixels.</returns>
        public static int BBIAutoLevelRGB(Image image, int threshold)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIAutoLevelRGB(image_p + image.Offset, threshold);
            }
        }

        /// <summary>
        /// Stretches the levels of each channel by the mean bounds of the two others.
        /// </summary>
        /// <param name="image">The image.</param>
        /// <param name="threshold">How many pixels at either end are given up; a negative one makes the bounds 0
        /// and 255.</param>
        /// <returns>0: Done. 1: The image has no pixels.</returns>
        public static int BBIAutoLevelRGBRev(Image image, int threshold)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIAutoLevelRGBRev(image_p + image.Offset, threshold);
            }
        }

        /// <summary>
        /// Stretches the levels of each channel by its own high bound and a low one that is a quarter of the
        /// others' mean.
        /// </summary>
        /// <param name="image">The image.</param>
        /// <param name="threshold">How many pixels at either end are given up; a negative one makes the bounds 0
        /// and 255.</param>
        /// <returns>0: Done. 1: The image has no pixels.</returns>
        public static int BBIAutoLevelRGBMul(Image image, int threshold)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIAutoLevelRGBMul(image_p + image.Offset, threshold);
            }
        }

        /// <summary>
        /// Stretches the levels of all channels alike, which keeps their balance.
        /// </summary>
        /// <remarks>
        /// L and H are measured in one histogram of blue, green and red of every pixel: three counts a pixel, which
        /// the threshold is compared with.
        /// </remarks>
        /// <param name="image">The image.</param>
        /// <param name="threshold">How many pixels at either end are given up; a negative one makes the bounds 0
        /// and 255.</param>
        /// <returns>0: Done. 1: The image has no pixels.</returns>
        public static int BBIAutoLevelWB(Image image, int threshold)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIAutoLevelWB(image_p + image.Offset, threshold);
            }
        }

        /// <summary>
        /// Stretches with one opacity: d = mix(d, s, constant weight), at opacity 1 a copy.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dw">The size of the rectangle in <c>dst</c>.</param>
        /// <param name="dh">The size of the rectangle in <c>dst</c>.</param>
        /// <param name="sx">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sy">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sw">The size of the rectangle in <c>src</c>.</param>
        /// <param name="sh">The size of the rectangle in <c>src</c>.</param>
        /// <param name="opacity">Above 1 counts as 1; negative or not a number returns 1.</param>
        /// <returns>0: Done. 1: An argument is unusable, or clipping left nothing.</returns>
        public static int BBIExpandBlt(Image dst, Image src, int dx, int dy, int dw, int dh, int sx, int sy, int sw, int sh, float opacity)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIExpandBlt(dst_p + dst.Offset, src_p + src.Offset, dx, dy, dw, dh, sx, sy, sw, sh, opacity);
            }
        }

        /// <summary>
        /// Stretches by the alpha of the source: d = mix(d, s, alpha weight of s).
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dw">The size of the rectangle in <c>dst</c>.</param>
        /// <param name="dh">The size of the rectangle in <c>dst</c>.</param>
        /// <param name="sx">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sy">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sw">The size of the rectangle in <c>src</c>.</param>
        /// <param name="sh">The size of the rectangle in <c>src</c>.</param>
        /// <param name="opacity">Above 1 counts as 1; negative or not a number returns 1.</param>
        /// <returns>0: Done. 1: An argument is unusable, or clipping left nothing.</returns>
        public static int BBIExpandBlendBlt(Image dst, Image src, int dx, int dy, int dw, int dh, int sx, int sy, int sw, int sh, float opacity)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIExpandBlendBlt(dst_p + dst.Offset, src_p + src.Offset, dx, dy, dw, dh, sx, sy, sw, sh, opacity);
            }
        }

        /// <summary>
        /// Replaces bits of each sample by a gradient between four corner colours, then mixes it in.
        /// </summary>
        /// <remarks>
        /// The gradient spans the clipped destination rectangle. With
        /// <c>w(k, n) = trunc((float)((double)k / (n - 1)) * 256)</c>, 0 where n is 1, pixel (j, i) of it has
        /// <c>G = mix(mix(top_left, bottom_left, w(i, dh)), mix(top_right, bottom_right, w(i, dh)), w(j, dw))</c>.
        /// The
        /// sample becomes <c>(s &amp; mask) | (G &amp; ~mask)</c>, is mixed into d by its weight, and
        /// <c>keep_mask</c> is applied.
        ///
        /// Returns 1 also when there is no memory for the weights of a row.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dw">The size of the rectangle in <c>dst</c>.</param>
        /// <param name="dh">The size of the rectangle in <c>dst</c>.</param>
        /// <param name="sx">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sy">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sw">The size of the rectangle in <c>src</c>.</param>
        /// <param name="sh">The size of the rectangle in <c>src</c>.</param>
        /// <param name="opacity">Above 1 counts as 1; negative or not a number returns 1.</param>
        /// <param name="keep_mask">The bits of d that stay: <c>(d &amp; keep_mask) | (new &amp;
        /// ~keep_mask)</c>.</param>
        /// <param name="mask">The bits of the sample that stay.</param>
        /// <param name="top_left">The gradient's corner.</param>
        /// <param name="top_right">The gradient's corner.</param>
        /// <param name="bottom_left">The gradient's corner.</param>
        /// <param name="bottom_right">The gradient's corner.</param>
        /// <param name="use_source_alpha">Weight by the alpha of the sample as replaced; off: the constant
        /// weight.</param>
        /// <returns>0: Done. 1: An argument is unusable, or clipping left nothing.</returns>
        public static int BBIExpandColorBlt(Image dst, Image src, int dx, int dy, int dw, int dh, int sx, int sy, int sw, int sh, float opacity, uint keep_mask, uint mask, uint top_left, uint top_right, uint bottom_left, uint bottom_right, int use_source_alpha)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIExpandColorBlt(dst_p + dst.Offset, src_p + src.Offset, dx, dy, dw, dh, sx, sy, sw, sh, opacity, keep_mask, mask, top_left, top_right, bottom_left, bottom_right, use_source_alpha);
            }
        }

        /// <summary>
        /// The general stretched blit.
        /// </summary>
        /// <remarks>
        /// For each destination pixel d, in this order:
        ///
        /// 1. base = d, or with <c>source_is_base</c> the sample as read
        /// 2. mask: <c>s = (s &amp; mask) | (((~s &amp; invert_bits) | colour) &amp; ~mask)</c>
        /// 3. saturation, in the colours: with <c>k = trunc(saturation * 1024)</c>, <c>m = (1024 - k) / 3</c> and
        ///    <c>g = (red + green + blue) * m &gt;&gt; 10</c>, each becomes <c>(colour * k &gt;&gt; 10) + g</c>,
        /// clamped to 0..255
        /// 4. levels, in the colours: with lo and hi, a colour's bytes of <c>level_low</c> and <c>level_high</c>, v
        /// becomes,
        ///    whichever fits first, 255 - lo for v = lo = hi, 0 for <c>v &lt;= lo</c>, 255 for <c>v &gt;= hi</c>,
        /// else
        ///    <c>255 * (v - lo) / (hi - lo)</c>
        /// 5. weight: with <c>use_source_alpha</c> the alpha weight of s as it is now, else the constant weight
        /// 6. mix: s = mix(base, s, weight). With <c>add_colour</c> the colours become <c>min(base + (s * weight
        /// &gt;&gt; 8), 255)</c>
        ///    instead; with <c>add_alpha</c> the alpha does. Each works for itself.
        /// 7. keep: d = <c>(base &amp; keep_mask) | (s &amp; ~keep_mask)</c>
        ///
        /// A constant weight of 0 (an opacity below 1 / 256) without <c>source_is_base</c> returns 1, even with
        /// <c>use_source_alpha</c>.
        ///
        /// A call is simple with saturation 1, levels of 0 and 0xFFFFFF in their lower three bytes and the last
        /// three
        /// flags off. Simple calls return 0, not 2, and two of them, where the clipped sizes are equal and
        /// <c>keep_mask</c>
        /// is 0, do something else (the weight is the constant one, or with <c>use_source_alpha</c> that of s as
        /// read):
        ///
        /// | <c>mask</c> | and | does |
        /// |---|---|---|
        /// | 0xFFFFFFFF | <c>use_source_alpha</c>, constant weight 256 | BBIBltBlend with 0 as its last argument |
        /// | 0xFF000000 | <c>invert_bits</c> 0 | d = mix(d, colour, weight), its alpha byte too |
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dw">The size of the rectangle in <c>dst</c>.</param>
        /// <param name="dh">The size of the rectangle in <c>dst</c>.</param>
        /// <param name="sx">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sy">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sw">The size of the rectangle in <c>src</c>.</param>
        /// <param name="sh">The size of the rectangle in <c>src</c>.</param>
        /// <param name="opacity">Above 1 counts as 1; negative or not a number counts as 0.</param>
        /// <param name="saturation">0 is grey, 1 as it was. Below 0 and not a number count as 0, above 256 as
        /// 256.</param>
        /// <param name="level_low">What becomes 0, for each colour; the top byte counts for nothing.</param>
        /// <param name="level_high">What becomes 255, for each colour; the top byte counts for nothing.</param>
        /// <param name="keep_mask">The bits of the base that stay.</param>
        /// <param name="mask">The bits of the sample that stay.</param>
        /// <param name="colour">What comes into the others.</param>
        /// <param name="invert_bits">Where the sample comes into the others inverted.</param>
        /// <param name="use_source_alpha">Weight by the alpha of s; off: the constant weight for all
        /// pixels.</param>
        /// <param name="add_colour">Add the colours.</param>
        /// <param name="add_alpha">Add the alpha.</param>
        /// <param name="source_is_base">Mix with the sample as read, not with d.</param>
        /// <returns>0: Done, by a simple call. 1: Clipping left nothing, or the constant weight is 0. 2: Done. 513:
        /// Filled, by a simple call.</returns>
        public static int BBIExpandChooseBlt(Image dst, Image src, int dx, int dy, int dw, int dh, int sx, int sy, int sw, int sh, float opacity, float saturation, uint level_low, uint level_high, uint keep_mask, uint mask, uint colour, uint invert_bits, int use_source_alpha, int add_colour, int add_alpha, int source_is_base)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIExpandChooseBlt(dst_p + dst.Offset, src_p + src.Offset, dx, dy, dw, dh, sx, sy, sw, sh, opacity, saturation, level_low, level_high, keep_mask, mask, colour, invert_bits, use_source_alpha, add_colour, add_alpha, source_is_base);
            }
        }

        /// <summary>
        /// Stretches with bilinear interpolation: the sample replaces d.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dw">The size of the rectangle in <c>dst</c>.</param>
        /// <param name="dh">The size of the rectangle in <c>dst</c>.</param>
        /// <param name="sx">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sy">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sw">The size of the rectangle in <c>src</c>.</param>
        /// <param name="sh">The size of the rectangle in <c>src</c>.</param>
        /// <returns>0: Done. 1: An argument is unusable, or clipping left nothing.</returns>
        public static int BBILinearBlt(Image dst, Image src, int dx, int dy, int dw, int dh, int sx, int sy, int sw, int sh)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBILinearBlt(dst_p + dst.Offset, src_p + src.Offset, dx, dy, dw, dh, sx, sy, sw, sh);
            }
        }

        /// <summary>
        /// Brings each sample into d by a table of weights and a mode.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dw">The size of the rectangle in <c>dst</c>.</param>
        /// <param name="dh">The size of the rectangle in <c>dst</c>.</param>
        /// <param name="sx">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sy">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sw">The size of the rectangle in <c>src</c>.</param>
        /// <param name="sh">The size of the rectangle in <c>src</c>.</param>
        /// <param name="table">Weights of 0..256 by alpha, for example from BBIAlphaTableCreate. With larger ones
        /// channels run over into their neighbours: with <c>L = 0x00FF00FF</c> and sums modulo 2^32, mixing
        /// <c>d</c> and <c>s</c> gives <c>((d &amp; L) * (256 - w) + (s &amp; L) * w) &gt;&gt; 8 &amp; L | ((d
        /// &gt;&gt; 8 &amp; L) * (256 - w) + (s &gt;&gt; 8 &amp; L) * w) &amp; ~L</c>, the tint likewise, and
        /// adding the saturated sum of <c>d</c> and that with <c>d</c> and <c>256 - w</c> left out. Read once,
        /// before the first pixel is written. At least 256 words.</param>
        /// <param name="mode">What becomes of the sample.</param>
        /// <param name="smooth">Interpolate; off: always the nearest sample.</param>
        /// <param name="tint">The colour of the tint.</param>
        /// <returns>0: Done. 1: An argument is unusable, or clipping left nothing.</returns>
        public static int BBILinearRender(Image dst, Image src, int dx, int dy, int dw, int dh, int sx, int sy, int sw, int sh, ReadOnlySpan<uint> table, int mode, int smooth, uint tint)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            Check.Memory("table", 4L * table.Length, 1024);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            fixed (uint* table_ = &MemoryMarshal.GetReference(table))
            {
                return Native.BBILinearRender(dst_p + dst.Offset, src_p + src.Offset, dx, dy, dw, dh, sx, sy, sw, sh, table_, mode, smooth, tint);
            }
        }

        /// <summary>
        /// Fills a table with the weights of an opacity.
        /// </summary>
        /// <param name="table">The weights by alpha, 0..256. Needs no alignment. At least 256 words.</param>
        /// <param name="opacity">Below 0 and not a number count as 0, above 1 as 1.</param>
        /// <param name="by_alpha">The alpha weights; off: the constant weight throughout.</param>
        public static void BBIAlphaTableCreate(Span<uint> table, float opacity, int by_alpha)
        {
            Check.Memory("table", 4L * table.Length, 1024);
            fixed (uint* table_ = &MemoryMarshal.GetReference(table))
            {
                Native.BBIAlphaTableCreate(table_, opacity, by_alpha);
            }
        }

        /// <summary>
        /// Resizes all of <c>src</c> to all of <c>dst</c> with a cubic kernel.
        /// </summary>
        /// <remarks>
        /// The corners of the images coincide: destination column x lies at x times the quotient of width - 1 of
        /// <c>src</c>
        /// and of <c>dst</c>, or at 0 for a destination of one column; i is its integer part and t the rest. The
        /// four
        /// columns from i - 1 on have the weights k(1 + t), k(t), k(1 - t), k(2 - t), where k(v) is
        /// <c>1.0 - 2.0 * v * v + v * v * v</c> for <c>v &lt; 1</c> and <c>4.0 - 8.0 * v + 5.0 * v * v - v * v *
        /// v</c> else; rows
        /// likewise, all in double precision.
        ///
        /// A tap's weight is the product of its column's and its row's, rounded to single precision; below 0 it
        /// counts
        /// as 0, so that negative lobes act only where two meet. Taps outside the source are 0x00000000. The 16
        /// taps,
        /// row by row from 0, are merged in pairs: (0, 1), (2, 3) .. (14, 15), then (0, 2), (4, 6), (8, 10), (12,
        /// 14),
        /// then (0, 4), (8, 12), then (0, 8). To merge b into a, a becomes mix(a, b, <c>trunc(wb / (wa + wb) *
        /// 256)</c>),
        /// formed in double precision and 0 where both weights are 0; the weight of a becomes wa + wb, rounded to
        /// single precision.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <returns>0: Done. 1: An image has no pixels.</returns>
        public static int BBILinear(Image dst, Image src)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBILinear(dst_p + dst.Offset, src_p + src.Offset);
            }
        }

        /// <summary>
        /// An experiment: the nearest sample, averaged with neighbours along a spiral.
        /// </summary>
        /// <remarks>
        /// The sample v at source pixel (x, y) takes in its neighbours one after another, later ones weighing more:
        /// <c>v = (v + p) &gt;&gt; 1</c> per channel for p at (x, y) plus
        ///
        ///     (1, 0) (0, -1) (-1, 0) (0, 1)   (1, -1) (-1, -1) (-1, 1) (1, 1)   (2, 0) (0, -2) (-2, 0) (0, 2)
        ///     (2, -1) (-1, -2) (-2, 1) (1, 2)   (1, -2) (-2, -1) (-1, 2) (2, 1)
        ///
        /// Of these the first <c>min((sw / dw + sh / dh + 5) &amp; ~3, 20)</c> take part, and only where they lie
        /// at <c>sx &lt; x</c>,
        /// <c>x &lt; sw</c>, <c>sy &lt; y</c> and <c>y &lt; sh</c>: the clipped sizes serve as limits of
        /// coordinates. d becomes v. Rows of
        /// <c>src</c> are taken to lie <c>pitch / 4 * 4</c> bytes apart.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dw">The size of the rectangle in <c>dst</c>.</param>
        /// <param name="dh">The size of the rectangle in <c>dst</c>.</param>
        /// <param name="sx">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sy">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sw">The size of the rectangle in <c>src</c>.</param>
        /// <param name="sh">The size of the rectangle in <c>src</c>.</param>
        /// <returns>0: Done. 1: An argument is unusable, or clipping left nothing.</returns>
        public static int BBILinearBltTest(Image dst, Image src, int dx, int dy, int dw, int dh, int sx, int sy, int sw, int sh)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBILinearBltTest(dst_p + dst.Offset, src_p + src.Offset, dx, dy, dw, dh, sx, sy, sw, sh);
            }
        }

        /// <summary>
        /// Cross-fades with one opacity: d = mix(d, s, constant weight).
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sy">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="opacity">Above 1 counts as 1; negative or not a number returns 1.</param>
        /// <returns>0: Done. 1: An argument is unusable, or clipping left nothing.</returns>
        public static int BBIFlip(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy, float opacity)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIFlip(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy, opacity);
            }
        }

        /// <summary>
        /// Mixes by the alpha of the source: d = mix(d, s, alpha weight of s).
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sy">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="opacity">Above 1 counts as 1; negative or not a number returns 1.</param>
        /// <returns>0: Done. 1: An argument is unusable, or clipping left nothing.</returns>
        public static int BBIFlipBlend(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy, float opacity)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIFlipBlend(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy, opacity);
            }
        }

        /// <summary>
        /// Alpha as depth: s replaces d where the alpha of s is greater; on equal alpha d stays.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sy">Where the rectangle begins in <c>src</c>.</param>
        /// <returns>0: Done. 1: An argument is unusable, or clipping left nothing.</returns>
        public static int BBIDepth(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIDepth(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// As BBIDepth, but d becomes <c>(d &amp; keep_mask) | (s &amp; ~keep_mask)</c>.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sy">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="keep_mask">The bits of d that stay: <c>(d &amp; keep_mask) | (new &amp;
        /// ~keep_mask)</c>.</param>
        /// <returns>0: Done. 1: An argument is unusable, or clipping left nothing.</returns>
        public static int BBIDepthMask(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy, uint keep_mask)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIDepthMask(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy, keep_mask);
            }
        }

        /// <summary>
        /// Fills <c>length</c> pixels from (x, y) to the right.
        /// </summary>
        /// <remarks>
        /// 1 when y lies outside the image or nothing is left.
        /// </remarks>
        /// <param name="image">The image that is changed.</param>
        /// <param name="x">The first pixel of the run.</param>
        /// <param name="y">The first pixel of the run.</param>
        /// <param name="length">The length of the run, which is cut to the image.</param>
        /// <param name="colour">The new colour.</param>
        /// <returns>0: Done. 1: An argument is unusable, or clipping left nothing.</returns>
        public static int BBIFlipLineX(Image image, int x, int y, int length, uint colour)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIFlipLineX(image_p + image.Offset, x, y, length, colour);
            }
        }

        /// <summary>
        /// Fills <c>length</c> pixels from (x, y) downward.
        /// </summary>
        /// <remarks>
        /// 1 when x lies outside the image or nothing is left.
        ///
        /// From the first pixel drawn, rows are stepped by <c>pitch &amp; ~3</c>: with a pitch that is no multiple
        /// of 4 the
        /// line drifts to the left, by up to 3 bytes a row. It ends where it would begin below the lowest address
        /// of
        /// the image.
        /// </remarks>
        /// <param name="image">The image that is changed.</param>
        /// <param name="x">The first pixel of the run.</param>
        /// <param name="y">The first pixel of the run.</param>
        /// <param name="length">The length of the run, which is cut to the image.</param>
        /// <param name="colour">The new colour.</param>
        /// <returns>0: Done. 1: An argument is unusable, or clipping left nothing.</returns>
        public static int BBIFlipLineY(Image image, int x, int y, int length, uint colour)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIFlipLineY(image_p + image.Offset, x, y, length, colour);
            }
        }

        /// <summary>
        /// Box blur of rows: the mean of pixels max(i - radius, 0) to min(i + radius, n - 1).
        /// </summary>
        /// <remarks>
        /// The window is cut at the ends, never padded. <c>dst</c> and <c>src</c> may be one image and one
        /// rectangle. The time
        /// does not depend on the radius.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sy">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="radius">How far the window reaches to either side. Lowered to <c>n / 2 - 1</c> and to 127;
        /// below 1, given or lowered, the rectangle is copied as by BBIBlt.</param>
        /// <returns>0: Done. 1: An argument is unusable, or clipping left nothing.</returns>
        public static int BBIBltUBlur(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy, int radius)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltUBlur(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy, radius);
            }
        }

        /// <summary>
        /// As BBIBltUBlur, along columns.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sy">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="radius">How far the window reaches to either side. Lowered to <c>n / 2 - 1</c> and to 127;
        /// below 1, given or lowered, the rectangle is copied as by BBIBlt.</param>
        /// <returns>0: Done. 1: An argument is unusable, or clipping left nothing.</returns>
        public static int BBIBltVBlur(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy, int radius)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltVBlur(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy, radius);
            }
        }

        /// <summary>
        /// Box blur of rows for images that tile: the mean of pixels i - radius to i + radius, counted modulo n.
        /// </summary>
        /// <remarks>
        /// The pixels at both ends are read a second time, in the order of the window: the last radius, all, and
        /// the
        /// first radius pixels. So the destination must not overlap the source; if it does, what was written is
        /// blurred again.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sy">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="radius">How far the window reaches to either side. Lowered to <c>n / 2 - 1</c> and to 127;
        /// below 1, given or lowered, the rectangle is copied as by BBIBlt.</param>
        /// <returns>0: Done. 1: An argument is unusable, or clipping left nothing.</returns>
        public static int BBIBltUBlurLoop(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy, int radius)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltUBlurLoop(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy, radius);
            }
        }

        /// <summary>
        /// As BBIBltUBlurLoop, along columns.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sy">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="radius">How far the window reaches to either side. Lowered to <c>n / 2 - 1</c> and to 127;
        /// below 1, given or lowered, the rectangle is copied as by BBIBlt.</param>
        /// <returns>0: Done. 1: An argument is unusable, or clipping left nothing.</returns>
        public static int BBIBltVBlurLoop(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy, int radius)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltVBlurLoop(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy, radius);
            }
        }

        /// <summary>
        /// Rescales rows by num / den within the same length, with a box filter.
        /// </summary>
        /// <remarks>
        /// A source pixel counts as num units, a destination pixel is the mean of den units.
        ///
        /// - Shrinking (<c>num &lt; den</c>) starts at the first pixel: destination pixel k is made of den units
        /// from k * den
        ///   on, and unit u is source pixel <c>min(u / num, n - 1)</c>. The end of the row repeats the last pixel.
        /// - Enlarging (and num = den) starts at the last pixel: destination pixel n - 1 - k is made of the same
        ///   units, and unit u is source pixel <c>max(m - 1 - u / num, 0)</c> with <c>m = n * den / num</c>. What
        /// is left over
        ///   at the start repeats pixel 0.
        ///
        /// So <c>dst</c> and <c>src</c> may be one image and one rectangle. <c>num</c> and <c>den</c> are lowered
        /// each for itself, and 256
        /// / 512 is a copy: reduce the fraction first. Below 1, either returns 1.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sy">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="num">The numerator of the scale; above 128 counts as 128.</param>
        /// <param name="den">The denominator, likewise.</param>
        /// <returns>0: Done. 1: An argument is unusable, or clipping left nothing.</returns>
        public static int BBIBltUScale(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy, int num, int den)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltUScale(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy, num, den);
            }
        }

        /// <summary>
        /// As BBIBltUScale, along columns.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sy">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="num">The numerator of the scale; above 128 counts as 128.</param>
        /// <param name="den">The denominator, likewise.</param>
        /// <returns>0: Done. 1: An argument is unusable, or clipping left nothing.</returns>
        public static int BBIBltVScale(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy, int num, int den)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltVScale(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy, num, den);
            }
        }

        /// <summary>
        /// Halves a rectangle of 2 cx x 2 cy pixels of <c>src</c> to cx x cy: the mean of 2 x 2 pixels.
        /// </summary>
        /// <remarks>
        /// Nothing is clipped: 1 unless both rectangles lie inside their images and <c>cx</c> and <c>cy</c> are at
        /// least 1.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="dx">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="dy">Where the rectangle begins in <c>dst</c>.</param>
        /// <param name="cx">The size of the rectangle.</param>
        /// <param name="cy">The size of the rectangle.</param>
        /// <param name="sx">Where the rectangle begins in <c>src</c>.</param>
        /// <param name="sy">Where the rectangle begins in <c>src</c>.</param>
        /// <returns>0: Done. 1: An argument is unusable, or clipping left nothing.</returns>
        public static int BBIBltHalfSize(Image dst, Image src, int dx, int dy, int cx, int cy, int sx, int sy)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIBltHalfSize(dst_p + dst.Offset, src_p + src.Offset, dx, dy, cx, cy, sx, sy);
            }
        }

        /// <summary>
        /// Dithers for 5 bits a colour: c becomes <c>min((c &amp; 248) + ((c &amp; 7) &lt; m ? 0 : 8), 255)</c>.
        /// </summary>
        /// <remarks>
        /// m at row y % 4, column x % 4 of
        ///
        ///     0 4 1 5
        ///     6 2 7 3
        ///     1 5 0 4
        ///     7 3 6 2
        /// </remarks>
        /// <param name="image">The image that is changed.</param>
        /// <returns>0: Done. 1: The image has no pixels.</returns>
        public static int BBIColorCutDown1555(Image image)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIColorCutDown1555(image_p + image.Offset);
            }
        }

        /// <summary>
        /// Dithers for 4 bits a colour: c becomes <c>min((c &amp; 240) + ((c &amp; 15) &lt; m ? 0 : 16), 255)</c>.
        /// </summary>
        /// <remarks>
        /// m at row y % 4, column x % 4 of
        ///
        ///      0  8  2 10
        ///     12  4 14  6
        ///      3 11  1  9
        ///     15  7 13  5
        /// </remarks>
        /// <param name="image">The image that is changed.</param>
        /// <returns>0: Done. 1: The image has no pixels.</returns>
        public static int BBIColorCutDown4444(Image image)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIColorCutDown4444(image_p + image.Offset);
            }
        }

        /// <summary>
        /// Dithers for one bit a colour: c becomes <c>(c &gt;&gt; 2) &lt; m ? 0 : 255</c>.
        /// </summary>
        /// <remarks>
        /// m at row y % 8, column x % 8 of
        ///
        ///      3 11 23 31 24 12  4  0
        ///     10 22 39 51 40 32 13  5
        ///     21 38 50 59 52 41 33 14
        ///     30 49 58 63 60 53 42 25
        ///     29 48 57 62 61 54 43 26
        ///     20 37 47 56 55 44 34 15
        ///      9 19 36 46 45 35 16  6
        ///      2  8 18 28 27 17  7  1
        /// </remarks>
        /// <param name="image">The image that is changed.</param>
        /// <returns>0: Done. 1: The image has no pixels.</returns>
        public static int BBIColorCutDown1111(Image image)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIColorCutDown1111(image_p + image.Offset);
            }
        }

        /// <summary>
        /// Makes colours and alpha from colours or alpha; brightness is <c>(red + green + blue) / 3</c>.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="colour_from">What the colours come from.</param>
        /// <param name="alpha_from">What the alpha comes from.</param>
        /// <returns>0: Done. 1: The images have no part in common.</returns>
        public static int BBIChooseCA(Image dst, Image src, int colour_from, int alpha_from)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIChooseCA(dst_p + dst.Offset, src_p + src.Offset, colour_from, alpha_from);
            }
        }

        /// <summary>
        /// As BBIChooseCA; brightness is <c>trunc(green * 0.7154 + blue * 0.0721 + red * 0.2125)</c>, in double
        /// precision.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="colour_from">What the colours come from.</param>
        /// <param name="alpha_from">What the alpha comes from.</param>
        /// <returns>0: Done. 1: The images have no part in common.</returns>
        public static int BBIChooseCATR(Image dst, Image src, int colour_from, int alpha_from)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIChooseCATR(dst_p + dst.Offset, src_p + src.Offset, colour_from, alpha_from);
            }
        }

        /// <summary>
        /// As BBIChooseCA; brightness is <c>trunc(green * green_weight + blue * blue_weight + red *
        /// red_weight)</c>, in double precision.
        /// </summary>
        /// <remarks>
        /// The low 8 bits of that integer are taken, so that 256 gives 0. A sum that fits no 32-bit integer, or is
        /// not
        /// a number, gives 0.
        /// </remarks>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="colour_from">What the colours come from.</param>
        /// <param name="alpha_from">What the alpha comes from.</param>
        /// <param name="red_weight">The share of red.</param>
        /// <param name="green_weight">The share of green.</param>
        /// <param name="blue_weight">The share of blue.</param>
        /// <returns>0: Done. 1: The images have no part in common.</returns>
        public static int BBIChooseCATS(Image dst, Image src, int colour_from, int alpha_from, float red_weight, float green_weight, float blue_weight)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIChooseCATS(dst_p + dst.Offset, src_p + src.Offset, colour_from, alpha_from, red_weight, green_weight, blue_weight);
            }
        }

        /// <summary>
        /// Copies each channel from one that is named.
        /// </summary>
        /// <param name="dst">The image that is changed.</param>
        /// <param name="src">The image that is read.</param>
        /// <param name="red_from">What becomes red.</param>
        /// <param name="green_from">What becomes green.</param>
        /// <param name="blue_from">What becomes blue.</param>
        /// <param name="alpha_from">What becomes alpha.</param>
        /// <returns>0: Done. 1: The images have no part in common.</returns>
        public static int BBIChooseRGBA(Image dst, Image src, int red_from, int green_from, int blue_from, int alpha_from)
        {
            Check.Image("dst", dst);
            Check.Image("src", src);
            fixed (byte* dst_p = dst.Memory)
            fixed (byte* src_p = src.Memory)
            {
                return Native.BBIChooseRGBA(dst_p + dst.Offset, src_p + src.Offset, red_from, green_from, blue_from, alpha_from);
            }
        }

        /// <summary>
        /// Runs one of eleven operations on a whole image in place.
        /// </summary>
        /// <remarks>
        /// What the arguments are depends on the operation:
        ///
        /// | <c>op</c> | <c>colour</c> | <c>key</c> | <c>extra</c> | <c>outer</c> | result |
        /// |---|---|---|---|---|---|
        /// | 0, 1 | new colour | key | | | 0 |
        /// | 2 | fill colour | key | border on the others' side | border on the key's side | 0 |
        /// | 3, 4 | new colour | key | | | 0 |
        /// | 5 | new colour | key | most pixels of a region, signed | | regions painted |
        /// | 6, 9 | colour that does not count | key | | | key pixels left |
        /// | 7 | darkest grey, low byte | lightest grey, low byte | | | pixels left |
        /// | 8 | new colour | | | | pixels painted |
        /// | 10 | new colour | bits wanted | mask | | 0 |
        ///
        /// 2, 3 and 4 ask what the neighbours were before the call. In 2, others with a key neighbour become
        /// <c>extra</c>
        /// instead of <c>colour</c>, key pixels with another neighbour <c>outer</c>.
        ///
        /// 6, 7 and 9 visit the pixels in four sweeps, row by row: even columns of even rows, odd columns of even
        /// rows, even columns of odd rows, odd columns of odd rows. A pixel that was filled is a neighbour with its
        /// new colour from then on. A pixel without neighbours that count stays and is counted.
        ///
        /// - In 6 and 9 neighbours count that are neither key nor <c>colour</c>. One pass is made.
        /// - In 7 grey pixels whose blue lies from the darkest to the lightest are to be filled, and neighbours
        /// count
        ///   that are not grey or were filled. Passes repeat until no pixel is left or one fills nothing.
        /// - Commonest: the earlier of left, right, above, below on a tie.
        /// - Average: per channel, alpha included, from the sum of those that count: of one the sum, of two
        ///   <c>sum &gt;&gt; 1</c>, of three <c>(sum + 3) * 85 &gt;&gt; 8</c>, of four <c>(sum + 2) &gt;&gt; 2</c>.
        ///
        /// Any other operation, an image without pixels and a lack of working memory change nothing and return 0.
        /// </remarks>
        /// <param name="image">The image that is changed.</param>
        /// <param name="op">The operation.</param>
        /// <param name="colour">A colour, see the table.</param>
        /// <param name="key">The key, see the table.</param>
        /// <param name="extra">Another colour, a number or a mask, see the table.</param>
        /// <param name="outer">Another colour, see the table.</param>
        /// <returns>A number of pixels or regions, see the table.</returns>
        public static int BBIPaintChoose(Image image, uint op, uint colour, uint key, uint extra, uint outer)
        {
            Check.Image("image", image);
            fixed (byte* image_p = image.Memory)
            {
                return Native.BBIPaintChoose(image_p + image.Offset, op, colour, key, extra, outer);
            }
        }

        /// <summary>
        /// Reads a frame at the 16-bit scale.
        /// </summary>
        /// <param name="data">Frame 0: 1, 2 or 3 bytes a sample, 1 or 2 samples. At least max(count, 0) * (2 *
        /// min(abs(bits - 8), 1) + min(abs(bits - 16), 1)) * (2 - min(abs(channels - 2), 1)) bytes.</param>
        /// <param name="index">The frame.</param>
        /// <param name="bits">The width of a stored sample.</param>
        /// <param name="channels">Samples a frame.</param>
        /// <param name="count">Frames that the memory holds.</param>
        /// <param name="left">The left sample, or the only one.</param>
        /// <param name="right">The right sample, or the only one.</param>
        /// <returns>0: Always.</returns>
        public static int GetWave(ReadOnlySpan<byte> data, int index, int bits, int channels, int count, ref int left, ref int right)
        {
            Check.Memory("data", data.Length, Math.Max((long)count, 0) * (2 * Math.Min(Math.Abs((long)bits - 8), 1) + Math.Min(Math.Abs((long)bits - 16), 1)) * (2 - Math.Min(Math.Abs((long)channels - 2), 1)));
            fixed (byte* data_ = &MemoryMarshal.GetReference(data))
            fixed (int* left_ = &left)
            fixed (int* right_ = &right)
            {
                return Native.GetWave(data_, index, bits, channels, count, left_, right_);
            }
        }

        /// <summary>
        /// Writes a frame at the 16-bit scale, without clamping.
        /// </summary>
        /// <param name="data">Frame 0. At least max(count, 0) * (2 * min(abs(bits - 8), 1) + min(abs(bits - 16),
        /// 1)) * (2 - min(abs(channels - 2), 1)) bytes.</param>
        /// <param name="index">The frame.</param>
        /// <param name="bits">The width of a stored sample.</param>
        /// <param name="channels">Samples a frame.</param>
        /// <param name="count">Frames that the memory holds.</param>
        /// <param name="left">The left value; what does not fit loses its high bits.</param>
        /// <param name="right">The right one.</param>
        /// <returns>0: Always.</returns>
        public static int LetWave(Span<byte> data, int index, int bits, int channels, int count, int left, int right)
        {
            Check.Memory("data", data.Length, Math.Max((long)count, 0) * (2 * Math.Min(Math.Abs((long)bits - 8), 1) + Math.Min(Math.Abs((long)bits - 16), 1)) * (2 - Math.Min(Math.Abs((long)channels - 2), 1)));
            fixed (byte* data_ = &MemoryMarshal.GetReference(data))
            {
                return Native.LetWave(data_, index, bits, channels, count, left, right);
            }
        }

        /// <summary>
        /// Reads a frame at the 24-bit scale.
        /// </summary>
        /// <param name="data">Frame 0: 1, 2 or 3 bytes a sample, 1 or 2 samples. At least max(count, 0) * (2 *
        /// min(abs(bits - 8), 1) + min(abs(bits - 16), 1)) * (2 - min(abs(channels - 2), 1)) bytes.</param>
        /// <param name="index">The frame.</param>
        /// <param name="bits">The width of a stored sample.</param>
        /// <param name="channels">Samples a frame.</param>
        /// <param name="count">Frames that the memory holds.</param>
        /// <param name="left">The left sample, or the only one.</param>
        /// <param name="right">The right sample, or the only one.</param>
        /// <returns>0: Always.</returns>
        public static int GetWave24(ReadOnlySpan<byte> data, int index, int bits, int channels, int count, ref int left, ref int right)
        {
            Check.Memory("data", data.Length, Math.Max((long)count, 0) * (2 * Math.Min(Math.Abs((long)bits - 8), 1) + Math.Min(Math.Abs((long)bits - 16), 1)) * (2 - Math.Min(Math.Abs((long)channels - 2), 1)));
            fixed (byte* data_ = &MemoryMarshal.GetReference(data))
            fixed (int* left_ = &left)
            fixed (int* right_ = &right)
            {
                return Native.GetWave24(data_, index, bits, channels, count, left_, right_);
            }
        }

        /// <summary>
        /// Writes a frame at the 24-bit scale, without clamping.
        /// </summary>
        /// <param name="data">Frame 0. At least max(count, 0) * (2 * min(abs(bits - 8), 1) + min(abs(bits - 16),
        /// 1)) * (2 - min(abs(channels - 2), 1)) bytes.</param>
        /// <param name="index">The frame.</param>
        /// <param name="bits">The width of a stored sample.</param>
        /// <param name="channels">Samples a frame.</param>
        /// <param name="count">Frames that the memory holds.</param>
        /// <param name="left">The left value; what does not fit loses its high bits.</param>
        /// <param name="right">The right one.</param>
        /// <returns>0: Always.</returns>
        public static int LetWave24(Span<byte> data, int index, int bits, int channels, int count, int left, int right)
        {
            Check.Memory("data", data.Length, Math.Max((long)count, 0) * (2 * Math.Min(Math.Abs((long)bits - 8), 1) + Math.Min(Math.Abs((long)bits - 16), 1)) * (2 - Math.Min(Math.Abs((long)channels - 2), 1)));
            fixed (byte* data_ = &MemoryMarshal.GetReference(data))
            {
                return Native.LetWave24(data_, index, bits, channels, count, left, right);
            }
        }

        /// <summary>
        /// Reads a frame at the float scale.
        /// </summary>
        /// <param name="data">Frame 0. At least max(count, 0) * min(bits / 8, 8) * (2 - min(abs(channels - 2), 1))
        /// bytes.</param>
        /// <param name="index">The frame.</param>
        /// <param name="bits">The width of a stored sample.</param>
        /// <param name="channels">Samples a frame.</param>
        /// <param name="count">Frames that the memory holds.</param>
        /// <param name="left">The left sample, or the only one; untouched for unknown bits.</param>
        /// <param name="right">The right sample, or the only one; untouched for unknown bits.</param>
        /// <returns>0: Always.</returns>
        public static int GetWave64(ReadOnlySpan<byte> data, int index, int bits, int channels, int count, ref double left, ref double right)
        {
            Check.Memory("data", data.Length, Math.Max((long)count, 0) * Math.Min((long)bits / 8, 8) * (2 - Math.Min(Math.Abs((long)channels - 2), 1)));
            fixed (byte* data_ = &MemoryMarshal.GetReference(data))
            fixed (double* left_ = &left)
            fixed (double* right_ = &right)
            {
                return Native.GetWave64(data_, index, bits, channels, count, left_, right_);
            }
        }

        /// <summary>
        /// Writes a frame at the float scale, clamped to -1..1.
        /// </summary>
        /// <param name="data">Frame 0. At least max(count, 0) * min(bits / 8, 8) * (2 - min(abs(channels - 2), 1))
        /// bytes.</param>
        /// <param name="index">The frame.</param>
        /// <param name="bits">The width of a stored sample.</param>
        /// <param name="channels">Samples a frame.</param>
        /// <param name="count">Frames that the memory holds.</param>
        /// <param name="left">The left value; not a number counts as -1.</param>
        /// <param name="right">The right one.</param>
        /// <returns>0: Always.</returns>
        public static int LetWave64(Span<byte> data, int index, int bits, int channels, int count, double left, double right)
        {
            Check.Memory("data", data.Length, Math.Max((long)count, 0) * Math.Min((long)bits / 8, 8) * (2 - Math.Min(Math.Abs((long)channels - 2), 1)));
            fixed (byte* data_ = &MemoryMarshal.GetReference(data))
            {
                return Native.LetWave64(data_, index, bits, channels, count, left, right);
            }
        }

        /// <summary>
        /// Packs a format code: <c>rate * 256 + bits + channels</c>.
        /// </summary>
        /// <param name="bits">The width of a sample.</param>
        /// <param name="channels">Samples a frame.</param>
        /// <param name="rate">Frames a second. Not checked here: the functions that take the code refuse other
        /// rates.</param>
        /// <returns>The code, in the low 32 bits; 0 for other bits or channels.</returns>
        public static int waveFormatEnc(int bits, int channels, int rate)
        {
            return Native.waveFormatEnc(bits, channels, rate);
        }

        /// <summary>
        /// Converts a whole buffer at the 16-bit scale: frames <c>0..dst-&gt;count - 1</c>, silence past the end of
        /// <c>src</c>.
        /// </summary>
        /// <remarks>
        /// 24-bit samples lose their lowest byte. For full resolution and for 64-bit buffers use <c>waveBlt64</c>.
        /// </remarks>
        /// <param name="dst">The buffer that is filled.</param>
        /// <param name="src">The buffer that is read.</param>
        /// <returns>0: Done. 1: One of the formats is invalid.</returns>
        public static int waveFormat(Sound dst, Sound src)
        {
            Check.Sound("dst", dst, 0);
            Check.Sound("src", src, 0);
            fixed (byte* dst_p = dst.Data)
            fixed (byte* src_p = src.Data)
            {
                var dst_ = new WaveBuffer { Format = dst.Format, Count = dst.Count, Data = (IntPtr)dst_p };
                var src_ = new WaveBuffer { Format = src.Format, Count = src.Count, Data = (IntPtr)src_p };
                return Native.waveFormat(&dst_, &src_);
            }
        }

        /// <summary>
        /// Copies with a gain at the 24-bit scale: <c>(s * trunc(gain * 64)) &gt;&gt; 6</c>.
        /// </summary>
        /// <param name="dst">The buffer that is written.</param>
        /// <param name="src">The buffer that is read.</param>
        /// <param name="dst_start">The first frame written; may be negative or past the end.</param>
        /// <param name="src_start">The first frame read; may be negative or past the end.</param>
        /// <param name="count">How many frames; below 1 does nothing and returns 0.</param>
        /// <param name="gain">Limited to this range; not a number counts as 0. From 1 to below 1 + 1/64 frames are
        /// copied exactly.</param>
        /// <returns>0: Done. 1: A format is invalid, or a parameter is refused.</returns>
        public static int waveBlt(Sound dst, Sound src, int dst_start, int src_start, int count, float gain)
        {
            Check.Sound("dst", dst, 0);
            Check.Sound("src", src, 0);
            fixed (byte* dst_p = dst.Data)
            fixed (byte* src_p = src.Data)
            {
                var dst_ = new WaveBuffer { Format = dst.Format, Count = dst.Count, Data = (IntPtr)dst_p };
                var src_ = new WaveBuffer { Format = src.Format, Count = src.Count, Data = (IntPtr)src_p };
                return Native.waveBlt(&dst_, &src_, dst_start, src_start, count, gain);
            }
        }

        /// <summary>
        /// Moving average at the 16-bit scale: the sum of the source frames from <c>radius</c> before to
        /// <c>radius</c> after, divided by <c>2 * radius + 1</c> and truncated toward zero.
        /// </summary>
        /// <remarks>
        /// Frames before <c>src_start + radius</c> count as silence, so the first <c>2 * radius</c> results fade
        /// in. The cost
        /// does not depend on the radius.
        /// </remarks>
        /// <param name="dst">The buffer that is written.</param>
        /// <param name="src">The buffer that is read.</param>
        /// <param name="dst_start">The first frame written; may be negative or past the end.</param>
        /// <param name="src_start">The first frame read; may be negative or past the end.</param>
        /// <param name="count">How many frames; below 1 does nothing and returns 0.</param>
        /// <param name="radius">Below 1 is refused; above 511 counts as 511.</param>
        /// <returns>0: Done. 1: A format is invalid, or a parameter is refused.</returns>
        public static int waveBltBlur(Sound dst, Sound src, int dst_start, int src_start, int count, int radius)
        {
            Check.Sound("dst", dst, 0);
            Check.Sound("src", src, 0);
            fixed (byte* dst_p = dst.Data)
            fixed (byte* src_p = src.Data)
            {
                var dst_ = new WaveBuffer { Format = dst.Format, Count = dst.Count, Data = (IntPtr)dst_p };
                var src_ = new WaveBuffer { Format = src.Format, Count = src.Count, Data = (IntPtr)src_p };
                return Native.waveBltBlur(&dst_, &src_, dst_start, src_start, count, radius);
            }
        }

        /// <summary>
        /// Exclusive-or at the 16-bit scale: <c>d ^ s</c>, with <c>s</c> read <c>offset</c> frames further on.
        /// </summary>
        /// <remarks>
        /// Between 16-bit buffers, the same call undoes it.
        /// </remarks>
        /// <param name="dst">The buffer that is written.</param>
        /// <param name="src">The buffer that is read.</param>
        /// <param name="dst_start">The first frame written; may be negative or past the end.</param>
        /// <param name="src_start">The first frame read; may be negative or past the end.</param>
        /// <param name="count">How many frames; below 1 does nothing and returns 0.</param>
        /// <param name="offset">Below 1 is refused.</param>
        /// <returns>0: Done. 1: A format is invalid, or a parameter is refused.</returns>
        public static int waveBltGluder(Sound dst, Sound src, int dst_start, int src_start, int count, int offset)
        {
            Check.Sound("dst", dst, 0);
            Check.Sound("src", src, 0);
            fixed (byte* dst_p = dst.Data)
            fixed (byte* src_p = src.Data)
            {
                var dst_ = new WaveBuffer { Format = dst.Format, Count = dst.Count, Data = (IntPtr)dst_p };
                var src_ = new WaveBuffer { Format = src.Format, Count = src.Count, Data = (IntPtr)src_p };
                return Native.waveBltGluder(&dst_, &src_, dst_start, src_start, count, offset);
            }
        }

        /// <summary>
        /// Copies with noise at the 16-bit scale: <c>s + (((noise - 32768) * trunc(amount * 256)) &gt;&gt; 8)</c>.
        /// </summary>
        /// <remarks>
        /// <c>noise</c> is <c>GetRandom(65536)</c>, drawn for the left and then for the right channel of every
        /// frame, whatever
        /// the formats, the amount and the ends of the buffers: the result depends on every other draw in the
        /// process.
        /// A run of 2^31 frames therefore takes seconds.
        /// </remarks>
        /// <param name="dst">The buffer that is written.</param>
        /// <param name="src">The buffer that is read.</param>
        /// <param name="dst_start">The first frame written; may be negative or past the end.</param>
        /// <param name="src_start">The first frame read; may be negative or past the end.</param>
        /// <param name="count">How many frames; below 1 does nothing and returns 0.</param>
        /// <param name="amount">Limited to this range; not a number counts as 0.</param>
        /// <returns>0: Done. 1: A format is invalid, or a parameter is refused.</returns>
        public static int waveBltAddNoise(Sound dst, Sound src, int dst_start, int src_start, int count, float amount)
        {
            Check.Sound("dst", dst, 0);
            Check.Sound("src", src, 0);
            fixed (byte* dst_p = dst.Data)
            fixed (byte* src_p = src.Data)
            {
                var dst_ = new WaveBuffer { Format = dst.Format, Count = dst.Count, Data = (IntPtr)dst_p };
                var src_ = new WaveBuffer { Format = src.Format, Count = src.Count, Data = (IntPtr)src_p };
                return Native.waveBltAddNoise(&dst_, &src_, dst_start, src_start, count, amount);
            }
        }

        /// <summary>
        /// Copies with a tone at the 16-bit scale: <c>s + trunc(sin(phase) * amplitude * 32768)</c>, the same tone
        /// in both channels.
        /// </summary>
        /// <remarks>
        /// From <c>phase = modulation = 0</c> and <c>increment = frequency</c>, after every frame: <c>phase +=
        /// increment</c> (the old
        /// one), <c>modulation += rate</c>, <c>increment += sin(modulation) * depth</c> (the new modulation). The
        /// three are kept
        /// in single precision; sines, the product <c>sin(phase) * amplitude * 32768</c> and the sum that becomes
        /// the
        /// increment are formed in double. Every call begins anew. From a far negative position the tone is worked
        /// through.
        /// </remarks>
        /// <param name="dst">The buffer that is written.</param>
        /// <param name="src">The buffer that is read.</param>
        /// <param name="dst_start">The first frame written; may be negative or past the end.</param>
        /// <param name="src_start">The first frame read; may be negative or past the end.</param>
        /// <param name="count">How many frames; below 1 does nothing and returns 0.</param>
        /// <param name="amplitude">Limited to this range; not a number counts as -1.</param>
        /// <param name="frequency">The first increment: radians a frame, not hertz. <c>2 * pi * hertz /
        /// rate_of_the_buffer</c>.</param>
        /// <param name="depth">How much the increment moves in a frame at most.</param>
        /// <param name="rate">The speed of that movement: radians a frame, not hertz.</param>
        /// <returns>0: Done. 1: A format is invalid, or a parameter is refused.</returns>
        public static int waveBltSin(Sound dst, Sound src, int dst_start, int src_start, int count, float amplitude, float frequency, float depth, float rate)
        {
            Check.Sound("dst", dst, 0);
            Check.Sound("src", src, 0);
            fixed (byte* dst_p = dst.Data)
            fixed (byte* src_p = src.Data)
            {
                var dst_ = new WaveBuffer { Format = dst.Format, Count = dst.Count, Data = (IntPtr)dst_p };
                var src_ = new WaveBuffer { Format = src.Format, Count = src.Count, Data = (IntPtr)src_p };
                return Native.waveBltSin(&dst_, &src_, dst_start, src_start, count, amplitude, frequency, depth, rate);
            }
        }

        /// <summary>
        /// Mixes at the 16-bit scale: <c>d + ((s * trunc(gain * 256)) &gt;&gt; 8)</c>.
        /// </summary>
        /// <param name="dst">The buffer that is written.</param>
        /// <param name="src">The buffer that is read.</param>
        /// <param name="dst_start">The first frame written; may be negative or past the end.</param>
        /// <param name="src_start">The first frame read; may be negative or past the end.</param>
        /// <param name="count">How many frames; below 1 does nothing and returns 0.</param>
        /// <param name="gain">A negative gain and not a number are refused; above 4 counts as 4.</param>
        /// <returns>0: Done. 1: A format is invalid, or a parameter is refused.</returns>
        public static int waveBltAdd(Sound dst, Sound src, int dst_start, int src_start, int count, float gain)
        {
            Check.Sound("dst", dst, 0);
            Check.Sound("src", src, 0);
            fixed (byte* dst_p = dst.Data)
            fixed (byte* src_p = src.Data)
            {
                var dst_ = new WaveBuffer { Format = dst.Format, Count = dst.Count, Data = (IntPtr)dst_p };
                var src_ = new WaveBuffer { Format = src.Format, Count = src.Count, Data = (IntPtr)src_p };
                return Native.waveBltAdd(&dst_, &src_, dst_start, src_start, count, gain);
            }
        }

        /// <summary>
        /// Subtracts at the 16-bit scale: <c>d - ((s * trunc(gain * 256)) &gt;&gt; 8)</c>.
        /// </summary>
        /// <param name="dst">The buffer that is written.</param>
        /// <param name="src">The buffer that is read.</param>
        /// <param name="dst_start">The first frame written; may be negative or past the end.</param>
        /// <param name="src_start">The first frame read; may be negative or past the end.</param>
        /// <param name="count">How many frames; below 1 does nothing and returns 0.</param>
        /// <param name="gain">A negative gain and not a number are refused; above 4 counts as 4.</param>
        /// <returns>0: Done. 1: A format is invalid, or a parameter is refused.</returns>
        public static int waveBltSub(Sound dst, Sound src, int dst_start, int src_start, int count, float gain)
        {
            Check.Sound("dst", dst, 0);
            Check.Sound("src", src, 0);
            fixed (byte* dst_p = dst.Data)
            fixed (byte* src_p = src.Data)
            {
                var dst_ = new WaveBuffer { Format = dst.Format, Count = dst.Count, Data = (IntPtr)dst_p };
                var src_ = new WaveBuffer { Format = src.Format, Count = src.Count, Data = (IntPtr)src_p };
                return Native.waveBltSub(&dst_, &src_, dst_start, src_start, count, gain);
            }
        }

        /// <summary>
        /// Ring modulation by the magnitude of the source, at the 16-bit scale: <c>(abs(s) * d) &gt;&gt; 15</c>.
        /// </summary>
        /// <remarks>
        /// The gain can refuse, and does nothing else.
        /// </remarks>
        /// <param name="dst">The buffer that is written.</param>
        /// <param name="src">The buffer that is read.</param>
        /// <param name="dst_start">The first frame written; may be negative or past the end.</param>
        /// <param name="src_start">The first frame read; may be negative or past the end.</param>
        /// <param name="count">How many frames; below 1 does nothing and returns 0.</param>
        /// <param name="gain">A negative gain and not a number are refused; above 4 counts as 4.</param>
        /// <returns>0: Done. 1: A format is invalid, or a parameter is refused.</returns>
        public static int waveBltMul(Sound dst, Sound src, int dst_start, int src_start, int count, float gain)
        {
            Check.Sound("dst", dst, 0);
            Check.Sound("src", src, 0);
            fixed (byte* dst_p = dst.Data)
            fixed (byte* src_p = src.Data)
            {
                var dst_ = new WaveBuffer { Format = dst.Format, Count = dst.Count, Data = (IntPtr)dst_p };
                var src_ = new WaveBuffer { Format = src.Format, Count = src.Count, Data = (IntPtr)src_p };
                return Native.waveBltMul(&dst_, &src_, dst_start, src_start, count, gain);
            }
        }

        /// <summary>
        /// Copies at the float scale: converts between all formats, and keeps what they can hold to within one
        /// unit.
        /// </summary>
        /// <param name="dst">The buffer that is written.</param>
        /// <param name="src">The buffer that is read.</param>
        /// <param name="dst_start">The first frame written; may be negative or past the end.</param>
        /// <param name="src_start">The first frame read; may be negative or past the end.</param>
        /// <param name="count">How many frames; below 1 does nothing and returns 0.</param>
        /// <returns>0: Done. 1: A format is invalid, or a parameter is refused.</returns>
        public static int waveBlt64(Sound dst, Sound src, int dst_start, int src_start, int count)
        {
            Check.Sound("dst", dst, 0);
            Check.Sound("src", src, 0);
            fixed (byte* dst_p = dst.Data)
            fixed (byte* src_p = src.Data)
            {
                var dst_ = new WaveBuffer { Format = dst.Format, Count = dst.Count, Data = (IntPtr)dst_p };
                var src_ = new WaveBuffer { Format = src.Format, Count = src.Count, Data = (IntPtr)src_p };
                return Native.waveBlt64(&dst_, &src_, dst_start, src_start, count);
            }
        }

        /// <summary>
        /// Multiplies by <c>target / 0.01</c> at the float scale, clamped to -1..1.
        /// </summary>
        /// <remarks>
        /// Despite the name the level of the material plays no part.
        ///
        /// The quotient is formed in double precision from the single-precision target.
        /// </remarks>
        /// <param name="dst">The buffer that is written.</param>
        /// <param name="src">The buffer that is read.</param>
        /// <param name="dst_start">The first frame written; may be negative or past the end.</param>
        /// <param name="src_start">The first frame read; may be negative or past the end.</param>
        /// <param name="count">How many frames; below 1 does nothing and returns 0.</param>
        /// <param name="target">Limited to this range; not a number counts as 0. 0.01 keeps the level, 1 multiplies
        /// it by 100.</param>
        /// <returns>0: Done. 1: A format is invalid, or a parameter is refused.</returns>
        public static int waveNormal(Sound dst, Sound src, int dst_start, int src_start, int count, float target)
        {
            Check.Sound("dst", dst, 0);
            Check.Sound("src", src, 0);
            fixed (byte* dst_p = dst.Data)
            fixed (byte* src_p = src.Data)
            {
                var dst_ = new WaveBuffer { Format = dst.Format, Count = dst.Count, Data = (IntPtr)dst_p };
                var src_ = new WaveBuffer { Format = src.Format, Count = src.Count, Data = (IntPtr)src_p };
                return Native.waveNormal(&dst_, &src_, dst_start, src_start, count, target);
            }
        }

        /// <summary>
        /// Silences frames <c>start..start + count - 1</c>.
        /// </summary>
        /// <param name="dst">The buffer that is written.</param>
        /// <param name="start">The first frame; may be negative or past the end.</param>
        /// <param name="count">How many frames; below 1 does nothing and returns 0.</param>
        /// <returns>0: Done. 1: A format is invalid, or a parameter is refused.</returns>
        public static int waveClear64(Sound dst, int start, int count)
        {
            Check.Sound("dst", dst, 0);
            fixed (byte* dst_p = dst.Data)
            {
                var dst_ = new WaveBuffer { Format = dst.Format, Count = dst.Count, Data = (IntPtr)dst_p };
                return Native.waveClear64(&dst_, start, count);
            }
        }

        /// <summary>
        /// Fills <c>dst</c> with <c>src</c> read at a constant speed: frame <c>i</c> is the blend of the two source
        /// frames around <c>p = i * ratio</c>.
        /// </summary>
        /// <remarks>
        /// <c>p</c> is formed in double precision, <c>n = trunc(p)</c>.
        /// - Same bits and channels, 8 or 16 bits: stored samples are blended, <c>(sample(n + 1) * f + sample(n) *
        /// (256
        /// - f)) &gt;&gt; 8</c> with <c>f = trunc((p - n) * 256)</c>. The last source frame is held; frames from
        /// <c>src-&gt;count</c> on are
        ///   silence.
        /// - Same bits and channels, 24 or 64 bits: nothing is written, and 0 returned. Go through a buffer of
        /// other
        ///   bits.
        /// - All else at the 16-bit scale: <c>((32768 - f) * s(n) + f * s(n + 1)) &gt;&gt; 15</c> with <c>f =
        /// trunc((p - n) *
        ///   32768)</c>; behind the last frame lies silence, into which it fades.
        /// </remarks>
        /// <param name="dst">The buffer that is filled, all of it.</param>
        /// <param name="src">The buffer that is read.</param>
        /// <param name="ratio">Source frames for each destination frame: above 1 is faster and higher. Negative and
        /// not a number are refused.</param>
        /// <returns>0: Done, or nothing to do. 1: A format is invalid or the ratio refused.</returns>
        public static int waveExpand(Sound dst, Sound src, float ratio)
        {
            Check.Sound("dst", dst, 0);
            Check.Sound("src", src, 0);
            fixed (byte* dst_p = dst.Data)
            fixed (byte* src_p = src.Data)
            {
                var dst_ = new WaveBuffer { Format = dst.Format, Count = dst.Count, Data = (IntPtr)dst_p };
                var src_ = new WaveBuffer { Format = src.Format, Count = src.Count, Data = (IntPtr)src_p };
                return Native.waveExpand(&dst_, &src_, ratio);
            }
        }

        /// <summary>
        /// Raises quiet passages, in place, at the 24-bit scale.
        /// </summary>
        /// <remarks>
        /// In the <c>count</c> frames at the look position, magnitudes are limited to 8388607 and their bits joined
        /// by or.
        /// Each channel's new gain is <c>gain * growth</c>, at least 1 and at most 8; at most 4 with bit 20, 2 with
        /// bit 21,
        /// 1 with bit 22 (the highest that is set decides). The gain thus grows once a call. Frames at the write
        /// position are multiplied by <c>old, old + step, old + 2 * step, ...</c> with <c>step = (new - old) /
        /// count</c>, by
        /// repeated addition, and truncated. Where a loud block follows, the first products may not fit and then
        /// wrap;
        /// beyond 32 bits, and where the gain is not a number, they count as -2^31. A gain that is not a number
        /// stays
        /// so.
        /// </remarks>
        /// <param name="buffer">The sound.</param>
        /// <param name="look_position">The first frame whose loudness is looked at. A host keeps it a block or more
        /// ahead of the write position.</param>
        /// <param name="write_position">The first frame that is changed.</param>
        /// <param name="count">The length of the block. Below 1 is refused.</param>
        /// <param name="growth">Limited to this range; not a number counts as 1.0001.</param>
        /// <param name="left_gain">The gain of the left channel; a host begins with 1.0.</param>
        /// <param name="right_gain">The gain of the right channel.</param>
        /// <returns>0: Done. 1: A format is invalid or the count is below 1.</returns>
        public static int waveEffectMaximizer24(Sound buffer, ref int look_position, ref int write_position, int count, double growth, ref double left_gain, ref double right_gain)
        {
            Check.Sound("buffer", buffer, 0);
            fixed (byte* buffer_p = buffer.Data)
            fixed (int* look_position_ = &look_position)
            fixed (int* write_position_ = &write_position)
            fixed (double* left_gain_ = &left_gain)
            fixed (double* right_gain_ = &right_gain)
            {
                var buffer_ = new WaveBuffer { Format = buffer.Format, Count = buffer.Count, Data = (IntPtr)buffer_p };
                return Native.waveEffectMaximizer24(&buffer_, look_position_, write_position_, count, growth, left_gain_, right_gain_);
            }
        }

        /// <summary>
        /// Raises quiet passages at the float scale, from <c>src</c> to <c>dst</c>, both at the write position.
        /// </summary>
        /// <remarks>
        /// Results are clamped to -1..1.
        ///
        /// A state is the gain less 16. It becomes <c>state + step</c>, but at least -15 (a gain of 1), and then at
        /// most
        /// <c>limit - 16</c>: for loud material the limit wins. The limit follows from the peak <c>p</c> of the
        /// <c>count</c> source
        /// frames at the look position, the largest magnitude in the channel:
        ///
        /// | p from | limit |
        /// |---|---|
        /// | 0 | 16 |
        /// | 0.06249 | 14 |
        /// | 0.07142 | 12 |
        /// | 0.08333 | 10 |
        /// | 0.09999 | 8 |
        /// | 0.1249 | 6 |
        /// | 0.1666 | 4 |
        /// | 0.249 | 2 |
        /// | 0.49 | 1 |
        /// | 0.99 | 0.5 |
        /// | 1.99 | 0.25 |
        /// | 3.99 | 0.125 |
        /// | 7.99 | 0 |
        ///
        /// A state that is not a number stays so; samples that are not a number do not count in the peak. The gain
        /// moves over the block as in <c>waveEffectMaximizer24</c>, from <c>old state + 16</c> to <c>new state +
        /// 16</c>.
        /// </remarks>
        /// <param name="dst">The buffer that is written.</param>
        /// <param name="src">The buffer that is read.</param>
        /// <param name="look_position">The first frame whose loudness is looked at. A host keeps it a block or more
        /// ahead of the write position.</param>
        /// <param name="write_position">The first frame that is changed.</param>
        /// <param name="count">The length of the block. Below 1 is refused.</param>
        /// <param name="step">Limited to this range; not a number counts as 0.</param>
        /// <param name="left_state">The state of the left channel; a host begins with -15.0.</param>
        /// <param name="right_state">The state of the right channel.</param>
        /// <returns>0: Done. 1: A format is invalid or the count is below 1.</returns>
        public static int waveEffectMaximizer64(Sound dst, Sound src, ref int look_position, ref int write_position, int count, double step, ref double left_state, ref double right_state)
        {
            Check.Sound("dst", dst, 0);
            Check.Sound("src", src, 0);
            fixed (byte* dst_p = dst.Data)
            fixed (byte* src_p = src.Data)
            fixed (int* look_position_ = &look_position)
            fixed (int* write_position_ = &write_position)
            fixed (double* left_state_ = &left_state)
            fixed (double* right_state_ = &right_state)
            {
                var dst_ = new WaveBuffer { Format = dst.Format, Count = dst.Count, Data = (IntPtr)dst_p };
                var src_ = new WaveBuffer { Format = src.Format, Count = src.Count, Data = (IntPtr)src_p };
                return Native.waveEffectMaximizer64(&dst_, &src_, look_position_, write_position_, count, step, left_state_, right_state_);
            }
        }

        /// <summary>
        /// Adds echoes to <c>count</c> frames from the frame position on, in place, at the float scale.
        /// </summary>
        /// <remarks>
        /// For every frame, with <c>r</c> the ring position:
        /// 1. ring frame <c>r + 199</c>, times 0.005, is added to the frame, which is written clamped;
        /// 2. ring frame <c>r</c> is cleared;
        /// 3. with <c>e = (left + right) * (level * 0.5)</c> of the frame as it was read, unless that is 0 or not a
        /// number:
        ///    from <c>x = r + predelay</c>, for each tap, with <c>i = trunc(x)</c> in 64 bits (-2^63 for what does
        /// not fit or is
        ///    not a number) and <c>f = x - i</c>, ring frame <c>i</c> receives <c>(1
        /// - f) * e * gain</c> and ring frame <c>i + 1</c> receives <c>f * e * gain</c> of each channel's gain;
        /// then <c>x += spread *
        ///   distance</c>;
        /// 4. both positions advance by one.
        ///
        /// Ring frames are taken modulo 524288. So an echo is heard 199 frames before its delay is over, and one of
        /// less than 200 frames never. Calls that pass on the ring and both positions make one continuous reverb.
        /// Frames outside the buffer are silence, and only clear the ring.
        /// </remarks>
        /// <param name="buffer">The sound. A count of 0 is refused; a negative one is silence.</param>
        /// <param name="frame_position">The first frame; advanced by <c>count</c>.</param>
        /// <param name="ring">A 64-bit buffer of at least 524288 frames by its count, whatever its channels used as
        /// 524288 frames of two doubles: its data must be 8 MiB, cleared by the host before the first call. Its
        /// format and count may say one channel, but not less memory.</param>
        /// <param name="ring_position">The place in the ring, 0..524287; other values are taken modulo
        /// 524288.</param>
        /// <param name="count">The length of the block. Below 1 is refused.</param>
        /// <param name="level">How loud the echoes are sent; limited to this range, not a number counts as
        /// 0.</param>
        /// <param name="predelay">From a frame to its first echo; limited to this range.</param>
        /// <param name="spread">Multiplies the distances of the taps; limited to this range.</param>
        /// <param name="taps">How many echoes a frame has; limited to this range.</param>
        /// <param name="tap_table">10000 left gains, 10000 right gains, 10000 distances from a tap to the next in
        /// frames; the first <c>taps</c> of each are read. At least 30000 doubles.</param>
        /// <returns>0: Done. 1: The count is below 1; the buffer is invalid or has a count of 0; the ring is
        /// invalid, has fewer frames or other bits; or there is no memory for the distances of the taps, 8 bytes
        /// each.</returns>
        public static int waveEffectReverbA1(Sound buffer, ref int frame_position, Sound ring, ref int ring_position, int count, double level, int predelay, int spread, int taps, ReadOnlySpan<double> tap_table)
        {
            Check.Sound("buffer", buffer, 0);
            Check.Sound("ring", ring, 8388608);
            Check.Memory("tap_table", 8L * tap_table.Length, 240000);
            fixed (byte* buffer_p = buffer.Data)
            fixed (int* frame_position_ = &frame_position)
            fixed (byte* ring_p = ring.Data)
            fixed (int* ring_position_ = &ring_position)
            fixed (double* tap_table_ = &MemoryMarshal.GetReference(tap_table))
            {
                var buffer_ = new WaveBuffer { Format = buffer.Format, Count = buffer.Count, Data = (IntPtr)buffer_p };
                var ring_ = new WaveBuffer { Format = ring.Format, Count = ring.Count, Data = (IntPtr)ring_p };
                return Native.waveEffectReverbA1(&buffer_, frame_position_, &ring_, ring_position_, count, level, predelay, spread, taps, tap_table_);
            }
        }

        /// <summary>
        /// Real and imaginary parts of the spectrum.
        /// </summary>
        /// <param name="buffer">The sound.</param>
        /// <param name="start">The first frame.</param>
        /// <param name="n">The length of the run and of both arrays.</param>
        /// <param name="re">Real parts. Must not share memory with the sound or with <c>im</c>. At least n
        /// doubles.</param>
        /// <param name="im">Imaginary parts. At least n doubles.</param>
        /// <returns>0: Done. 1: The format is invalid. 2: <c>n</c> is below 1 or <c>start</c> negative. 3: The run
        /// leaves the buffer.</returns>
        public static int wavefft(Sound buffer, int start, int n, Span<double> re, Span<double> im)
        {
            Check.Sound("buffer", buffer, 0);
            Check.Memory("re", 8L * re.Length, 8 * (long)n);
            Check.Memory("im", 8L * im.Length, 8 * (long)n);
            fixed (byte* buffer_p = buffer.Data)
            fixed (double* re_ = &MemoryMarshal.GetReference(re))
            fixed (double* im_ = &MemoryMarshal.GetReference(im))
            {
                var buffer_ = new WaveBuffer { Format = buffer.Format, Count = buffer.Count, Data = (IntPtr)buffer_p };
                return Native.wavefft(&buffer_, start, n, re_, im_);
            }
        }

        /// <summary>
        /// Magnitude and angle: after <c>wavefft</c>, <c>re[k]</c> becomes <c>sqrt(re * re + im * im)</c> and
        /// <c>im[k]</c> becomes <c>atan2(re, im)</c>, in radians from the imaginary axis.
        /// </summary>
        /// <remarks>
        /// The arctangent is within one unit in the last place of the exact one, and the same on every target. The
        /// arrays are converted whatever the result, if <c>n</c> is at least 1: what they hold must be defined.
        /// </remarks>
        /// <param name="buffer">The sound.</param>
        /// <param name="start">The first frame.</param>
        /// <param name="n">The length of the run and of both arrays.</param>
        /// <param name="re">Real parts. Must not share memory with the sound or with <c>im</c>. At least n
        /// doubles.</param>
        /// <param name="im">Imaginary parts. At least n doubles.</param>
        /// <returns>0: Done. 1: The format is invalid; the arrays are converted all the same. 2: <c>n</c> is below
        /// 1, or <c>start</c> is negative and the arrays are converted all the same. 3: The run leaves the buffer;
        /// the arrays are converted all the same.</returns>
        public static int wavefft2(Sound buffer, int start, int n, Span<double> re, Span<double> im)
        {
            Check.Sound("buffer", buffer, 0);
            Check.Memory("re", 8L * re.Length, 8 * (long)n);
            Check.Memory("im", 8L * im.Length, 8 * (long)n);
            fixed (byte* buffer_p = buffer.Data)
            fixed (double* re_ = &MemoryMarshal.GetReference(re))
            fixed (double* im_ = &MemoryMarshal.GetReference(im))
            {
                var buffer_ = new WaveBuffer { Format = buffer.Format, Count = buffer.Count, Data = (IntPtr)buffer_p };
                return Native.wavefft2(&buffer_, start, n, re_, im_);
            }
        }

        // On 32-bit Windows the library removes its arguments itself, as Winapi says; elsewhere there is one convention.
        private static class Native
        {
            private const string Library = "tessaro";

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int iwave11Encoder(byte* source, byte* destination, uint length, uint* written);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int iwave11Decoder(byte* source, byte* destination, uint length);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int iwave12Encoder(byte* source, byte* destination, uint length, uint* written);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int iwave12Decoder(byte* source, byte* destination, uint length);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int iwave32Encoder(byte* source, byte* destination, uint length, uint* written);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int iwave32Decoder(byte* source, byte* destination, uint length);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int iwave21Encoder(byte* source, byte* destination, uint length, uint* written);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int iwave21Decoder(byte* source, byte* destination, uint length);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int iwave22Encoder(byte* source, byte* destination, uint length, uint* written);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int iwave22Decoder(byte* source, byte* destination, uint length);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int ichshift2Encoder(byte* source, byte* destination, uint length, uint* written);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int ichshift2Decoder(byte* source, byte* destination, uint length);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int ichshift3Encoder(byte* source, byte* destination, uint length, uint* written);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int ichshift3Decoder(byte* source, byte* destination, uint length);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int ichshift4Encoder(byte* source, byte* destination, uint length, uint* written);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int ichshift4Decoder(byte* source, byte* destination, uint length);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int iEncoder(byte* source, byte* destination, uint length, uint* written);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int iDecoder(void* stream, byte* destination, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int iDecoderSafe(byte* stream, byte* destination, uint stream_size, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int ioEncoder(byte* source, byte* destination, uint length, uint* written);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int ioDecoder(void* stream, byte* destination, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int ioDecoderSafe(byte* stream, byte* destination, uint stream_size, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int ib18Encoder(byte* source, byte* destination, uint length, uint* written);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int ib18Decoder(void* stream, byte* destination, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int ib18DecoderSafe(byte* stream, byte* destination, uint stream_size, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int ib18EncoderEx(byte* source, byte* destination, uint length, uint* written);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int ib18DecoderEx(void* stream, byte* destination, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int ib18DecoderExSafe(byte* stream, byte* destination, uint stream_size, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int iabrEncoder(byte* source, byte* destination, uint length, uint* written);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int iabrDecoder(void* stream, byte* destination, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int iabrDecoderSafe(byte* stream, byte* destination, uint stream_size, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int inabeEncoder(byte* source, byte* destination, uint length, uint* written);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int inabeDecoder(void* stream, byte* destination, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int inabeDecoderEx(void* stream, byte* destination, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int inabeDecoderSafe(byte* stream, byte* destination, uint stream_size, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int inabeDecoderExSafe(byte* stream, byte* destination, uint stream_size, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int imistEncoder(byte* source, byte* destination, uint length, uint* written);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int imistDecoder(void* stream, byte* destination, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int imistDecoderSafe(byte* stream, byte* destination, uint stream_size, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int indaEncoder(byte* source, byte* destination, uint length, uint* written);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int indaDecoder(void* stream, byte* destination, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int indaDecoderSafe(byte* stream, byte* destination, uint stream_size, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int icaEncoder(byte* source, byte* destination, uint length, uint* written);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int icaDecoder(void* stream, byte* destination, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int icaDecoderSafe(byte* stream, byte* destination, uint stream_size, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int c2fEncoder(byte* source, byte* destination, uint length, uint* written);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int c2fDecoder(byte* stream, byte* destination, uint stream_size, uint size);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int DecodeImageHead(byte* file, int size, int* width, int* height);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int DecodeImage(void* device, byte* file, int size);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIDrawLine(void* image, int x0, int y0, int x1, int y1, uint mask, uint colour);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIDotThick(void* image, int x0, int y0, int x1, int y1, uint mask, uint colour);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBILineThick(void* image, int x0, int y0, int x1, int y1, uint mask, uint colour, int thickness);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIDrawGradationLine(void* image, void* colours, int x0, int y0, int x1, int y1);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIDrawAlphaLine(void* image, void* colours, int x0, int y0, int x1, int y1);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIDrawColorFill(void* image, int x, int y, int cx, int cy, uint mask, uint colour);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIDrawColorTile(void* image, int x, int y, int cx, int cy, uint mask, int tile_cx, int tile_cy, uint colour0, uint colour1, uint colour2, uint colour3);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIDrawBox(void* image, int x, int y, int cx, int cy, uint mask, uint top_left, uint top_right, uint bottom_left, uint bottom_right);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIDrawGradationBox(void* image, void* pattern, int x0, int y0, int x1, int y1);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIDrawMultiplyLineBox(void* image, void* pattern, int x0, int y0, int x1, int y1);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIDrawExclusiveLineBox(void* image, void* pattern, int x0, int y0, int x1, int y1);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIDrawTriangle(void* image, int x0, int y0, int x1, int y1, int x2, int y2, uint mask, uint colour);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIDrawTriangleA(void* image, int x0, int y0, int x1, int y1, int x2, int y2, uint mask, uint colour);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIDrawLineCircle(void* image, void* palette, int x0, int y0, int x1, int y1);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIDrawPolaCircle(void* image, void* palette, int x0, int y0, int x1, int y1);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int GetCpuID();

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int MMX(int flag);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBI(int x);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int wave(int x);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern uint SHR(uint value, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int SAR(int value, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern uint SHL(uint value, uint count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern ushort GetWORD(void* @base, int index);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern ushort GetInt(void* @base, int index);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern ushort SetWORD(void* @base, int index, uint value);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern ushort SetInt(void* @base, int index, uint value);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern uint GetDWORD(void* @base, int index);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern uint GetLong(void* @base, int index);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern uint SetDWORD(void* @base, int index, uint value);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern uint SetLong(void* @base, int index, uint value);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int dllComp(byte* a, byte* b, int count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int CopyMemoryEx(byte* dst, byte* src, int words, int rows, int pitch);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern uint hash32A(byte* text);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern uint hash32W(byte* bytes, int length);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern uint dwColorBlend(uint colour0, uint colour1, float factor);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern IntPtr dllMethod1(TessaroMethod1 fn, IntPtr a);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern IntPtr dllMethod4(TessaroMethod4 fn, IntPtr a, IntPtr b, IntPtr c, IntPtr d);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern IntPtr StdCallBack(TessaroCallback2 fn, IntPtr a, IntPtr b);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern uint GetRandom(uint n);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int ThreadBegin(TessaroWorker fn);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int ThreadKill();

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int WindowProcLoad(IntPtr window, TessaroHook hook, IntPtr value);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int WindowProcUnload(IntPtr window);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIMapUC(void* dst, void* src, void* map, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIMapUCVA(void* dst, void* src, void* map, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIMapUDVA(void* dst, void* src, void* map, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIMapMCUCVA(void* dst, void* src, void* map, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIMapMCUDVA(void* dst, void* src, void* map, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIMapUCVC(void* dst, void* src, void* map, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIMapUDVC(void* dst, void* src, void* map, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIMapUCVX(void* dst, void* src, void* map, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIMapUCVY(void* dst, void* src, void* map, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIStencilFlip(void* dst, void* outgoing, void* incoming, int dx, int dy, int cx, int cy, int sx, int sy, float progress, float softness, int unused);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIStencilFlipLE(void* dst, void* outgoing, void* incoming, void* stencil, int dx, int dy, int cx, int cy, int sx, int sy, float progress, float softness);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIStencilFlipLEFix(void* dst, void* incoming, void* outgoing, void* stencil, int dx, int dy, int cx, int cy, int sx, int sy, float progress, float softness);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIStencilAddsigned(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy, float opacity, uint colour);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBlt(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltColor(void* dst, int dx, int dy, int cx, int cy, uint mask, uint invert_bits, uint colour);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltColorBlend(void* dst, int dx, int dy, int cx, int cy, uint colour, float factor);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltAlpha(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy, int max_with_dest, int min_with_dest, int invert, int subtract_from_dest);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltAdd(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltMul(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltSub(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltXor(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltXor2(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltXor3(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltNot(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltMin(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltMax(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltKeying(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltKeyingFX(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy, int keyed, int level);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltBlend(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy, int whole);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltHalfBlend(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltShiftAlpha(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltShiftBlock(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltTo32from1(void* image, byte* bits, uint* palette, int stride);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltTo32from8(void* image, byte* bits, uint* palette, int stride);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltTo32from24(void* image, byte* bits, int stride);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltTo32from32(void* image, byte* bits, int stride);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltToBBIGet(uint* dst, byte* src, int count, int format);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltTo24As888(byte* dst, uint* src, int count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltTo16As444(byte* dst, uint* src, int count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltTo16As565(byte* dst, uint* src, int count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltTo16As555(byte* dst, uint* src, int count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltTo16As1555(byte* dst, uint* src, int count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltTo8AsGray(byte* dst, uint* src, int count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltTo8AsAlpha(byte* dst, uint* src, int count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltTo1(byte* dst, uint* src, int count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltToX(byte* dst, uint* src, int count, int format, uint colour, float factor);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltToXF(byte* dst, uint* a, uint* b, int count, int format, float factor);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltToF(byte* dst, uint* src, int count, int format, uint colour, float factor, float saturation, int use_table, byte* table);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBICompare(void* a, void* b, int mode);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBICompareAny(void* a, void* b, uint mask, int tolerance);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIColorCount(void* image, int reserved);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIColorPalette(void* image, uint* palette, int max);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBITrim(void* image, int reserved, uint mask, uint key, int* left, int* top, int* cx, int* cy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIClear(void* image, int red, int green, int blue, int alpha);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIClearRGB(void* image, int red, int green, int blue);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIClearMask(void* image, int red, int green, int blue, int alpha, uint mask);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIMirror(void* image);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIVMirror(void* image);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIRotation(void* dst, void* src, int mode);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIKeying(void* image, uint key);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIKeyingFilter(void* image);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIAntiAreas(int a, int b, int c);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIPaint(void* image, int x, int y, uint colour, int* left, int* top, int* right, int* bottom);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltTone(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltToneWB(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy, float factor);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltTrueBlend(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy, float opacity);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIAutoLevelRGB(void* image, int threshold);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIAutoLevelRGBRev(void* image, int threshold);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIAutoLevelRGBMul(void* image, int threshold);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIAutoLevelWB(void* image, int threshold);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIExpandBlt(void* dst, void* src, int dx, int dy, int dw, int dh, int sx, int sy, int sw, int sh, float opacity);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIExpandBlendBlt(void* dst, void* src, int dx, int dy, int dw, int dh, int sx, int sy, int sw, int sh, float opacity);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIExpandColorBlt(void* dst, void* src, int dx, int dy, int dw, int dh, int sx, int sy, int sw, int sh, float opacity, uint keep_mask, uint mask, uint top_left, uint top_right, uint bottom_left, uint bottom_right, int use_source_alpha);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIExpandChooseBlt(void* dst, void* src, int dx, int dy, int dw, int dh, int sx, int sy, int sw, int sh, float opacity, float saturation, uint level_low, uint level_high, uint keep_mask, uint mask, uint colour, uint invert_bits, int use_source_alpha, int add_colour, int add_alpha, int source_is_base);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBILinearBlt(void* dst, void* src, int dx, int dy, int dw, int dh, int sx, int sy, int sw, int sh);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBILinearRender(void* dst, void* src, int dx, int dy, int dw, int dh, int sx, int sy, int sw, int sh, uint* table, int mode, int smooth, uint tint);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern void BBIAlphaTableCreate(uint* table, float opacity, int by_alpha);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBILinear(void* dst, void* src);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBILinearBltTest(void* dst, void* src, int dx, int dy, int dw, int dh, int sx, int sy, int sw, int sh);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIFlip(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy, float opacity);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIFlipBlend(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy, float opacity);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIDepth(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIDepthMask(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy, uint keep_mask);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIFlipLineX(void* image, int x, int y, int length, uint colour);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIFlipLineY(void* image, int x, int y, int length, uint colour);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltUBlur(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy, int radius);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltVBlur(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy, int radius);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltUBlurLoop(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy, int radius);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltVBlurLoop(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy, int radius);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltUScale(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy, int num, int den);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltVScale(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy, int num, int den);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIBltHalfSize(void* dst, void* src, int dx, int dy, int cx, int cy, int sx, int sy);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIColorCutDown1555(void* image);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIColorCutDown4444(void* image);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIColorCutDown1111(void* image);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIChooseCA(void* dst, void* src, int colour_from, int alpha_from);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIChooseCATR(void* dst, void* src, int colour_from, int alpha_from);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIChooseCATS(void* dst, void* src, int colour_from, int alpha_from, float red_weight, float green_weight, float blue_weight);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIChooseRGBA(void* dst, void* src, int red_from, int green_from, int blue_from, int alpha_from);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int BBIPaintChoose(void* image, uint op, uint colour, uint key, uint extra, uint outer);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int GetWave(byte* data, int index, int bits, int channels, int count, int* left, int* right);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int LetWave(byte* data, int index, int bits, int channels, int count, int left, int right);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int GetWave24(byte* data, int index, int bits, int channels, int count, int* left, int* right);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int LetWave24(byte* data, int index, int bits, int channels, int count, int left, int right);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int GetWave64(byte* data, int index, int bits, int channels, int count, double* left, double* right);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int LetWave64(byte* data, int index, int bits, int channels, int count, double left, double right);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int waveFormatEnc(int bits, int channels, int rate);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int waveFormat(void* dst, void* src);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int waveBlt(void* dst, void* src, int dst_start, int src_start, int count, float gain);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int waveBltBlur(void* dst, void* src, int dst_start, int src_start, int count, int radius);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int waveBltGluder(void* dst, void* src, int dst_start, int src_start, int count, int offset);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int waveBltAddNoise(void* dst, void* src, int dst_start, int src_start, int count, float amount);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int waveBltSin(void* dst, void* src, int dst_start, int src_start, int count, float amplitude, float frequency, float depth, float rate);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int waveBltAdd(void* dst, void* src, int dst_start, int src_start, int count, float gain);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int waveBltSub(void* dst, void* src, int dst_start, int src_start, int count, float gain);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int waveBltMul(void* dst, void* src, int dst_start, int src_start, int count, float gain);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int waveBlt64(void* dst, void* src, int dst_start, int src_start, int count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int waveNormal(void* dst, void* src, int dst_start, int src_start, int count, float target);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int waveClear64(void* dst, int start, int count);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int waveExpand(void* dst, void* src, float ratio);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int waveEffectMaximizer24(void* buffer, int* look_position, int* write_position, int count, double growth, double* left_gain, double* right_gain);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int waveEffectMaximizer64(void* dst, void* src, int* look_position, int* write_position, int count, double step, double* left_state, double* right_state);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int waveEffectReverbA1(void* buffer, int* frame_position, void* ring, int* ring_position, int count, double level, int predelay, int spread, int taps, double* tap_table);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int wavefft(void* buffer, int start, int n, double* re, double* im);

            [DllImport(Library, ExactSpelling = true)]
            internal static extern int wavefft2(void* buffer, int start, int n, double* re, double* im);
        }
    }
}
