// Made by bindings/csharp/generate.py from the description of the functions. Do not edit.
using System;

namespace Tessaro
{
    /// <summary>Levels of a processor.</summary>
    public enum CpuLevel
    {
        /// <summary>No packed integers.</summary>
        Basic = 2,
        /// <summary>No packed integers, but conditional moves.</summary>
        Cmov = 3,
        /// <summary>MMX.</summary>
        Mmx = 4,
        /// <summary>MMX and SSE.</summary>
        MmxSse = 12,
        /// <summary>MMX and SSE2 without SSE.</summary>
        MmxSse2 = 20,
        /// <summary>MMX, SSE and SSE2.</summary>
        Sse2 = 28,
    }

    /// <summary>Pixel formats, with A, R, G and B the bytes of a pixel.</summary>
    public enum Format
    {
        /// <summary>4 bytes: the word 0xAARRGGBB.</summary>
        Format8888 = 8888,
        /// <summary>3 bytes: blue, green, red. Unpacked with alpha 0.</summary>
        Format888 = 888,
        /// <summary>2 bytes: <c>R &gt;&gt; 3 &lt;&lt; 11 | G &gt;&gt; 2 &lt;&lt; 5 | B &gt;&gt; 3</c>. Unpacked with alpha 0.</summary>
        Format565 = 565,
        /// <summary>2 bytes: <c>R &gt;&gt; 3 &lt;&lt; 10 | G &gt;&gt; 3 &lt;&lt; 5 | B &gt;&gt; 3</c>. Unpacked with alpha 0, whatever bit 15 is.</summary>
        Format555 = 555,
        /// <summary>2 bytes: <c>A &gt;&gt; 7 &lt;&lt; 15</c>, the rest as in 555. Unpacked with alpha 0x80 or 0.</summary>
        Format1555 = 1555,
        /// <summary>2 bytes: <c>A &gt;&gt; 4 &lt;&lt; 12 | R &gt;&gt; 4 &lt;&lt; 8 | G &gt;&gt; 4 &lt;&lt; 4 | B &gt;&gt; 4</c>. Unpacked with each four bits on top of their byte.</summary>
        Format4444 = 4444,
    }

    /// <summary>What <c>BBICompare</c> tests.</summary>
    public enum Compare
    {
        /// <summary>All 32 bits of both are equal.</summary>
        Pixels = 0,
        /// <summary>The colours of both are equal.</summary>
        Colours = 1,
        /// <summary>The alphas of both are equal.</summary>
        Alphas = 2,
        /// <summary>The alpha of <c>a</c> is 0.</summary>
        Transparent = 4,
        /// <summary>The alpha of <c>a</c> is 255.</summary>
        Opaque = 5,
        /// <summary>The colour of <c>a</c> is 0x000000 or 0xFFFFFF.</summary>
        BlackWhite = 6,
        /// <summary>Blue, green and red of <c>a</c> are equal.</summary>
        Grey = 7,
    }

    /// <summary>Turns of an image.</summary>
    public enum Turn
    {
        /// <summary>A quarter clockwise: column x, row y goes to column <c>height - 1 - y</c>, row <c>x</c>.</summary>
        Right = 0,
        /// <summary>A half: to column <c>width - 1 - x</c>, row <c>height - 1 - y</c>.</summary>
        Half = 1,
        /// <summary>A quarter counter-clockwise: to column <c>y</c>, row <c>width - 1 - x</c>.</summary>
        Left = 2,
    }

    /// <summary>What BBILinearRender does with a sample s, with the weight a = table[alpha of s].</summary>
    public enum Render
    {
        /// <summary>d = mix(d, s, a); any number but the others as well.</summary>
        Mix = 0,
        /// <summary><c>d = min(d + (s * a &gt;&gt; 8), 255)</c> per channel, alpha included.</summary>
        Add = 1,
        /// <summary>The colours of s become mix(s, tint, table[alpha of tint]), then as mixing.</summary>
        Tint = 2,
        /// <summary>The same tint, then as adding.</summary>
        TintAdd = 3,
    }

    /// <summary>What BBIChooseCA and its relatives build from; other bits count for nothing.</summary>
    [Flags]
    public enum Choose
    {
        /// <summary>The colour: as colours, or as alpha its brightness.</summary>
        Colour = 0,
        /// <summary>The alpha: as colours a grey of it, or as alpha.</summary>
        Alpha = 1,
        /// <summary>Added: the pixel of <c>dst</c>; else that of <c>src</c>.</summary>
        Dst = 2,
    }

    /// <summary>What a channel is copied from by BBIChooseRGBA; other bits count for nothing.</summary>
    [Flags]
    public enum From
    {
        /// <summary>The red.</summary>
        Red = 0,
        /// <summary>The green.</summary>
        Green = 1,
        /// <summary>The blue.</summary>
        Blue = 2,
        /// <summary>The alpha.</summary>
        Alpha = 3,
        /// <summary>Added: of the pixel of <c>dst</c>; else of that of <c>src</c>.</summary>
        Dst = 4,
    }

    /// <summary>The operations of BBIPaintChoose.</summary>
    public enum Paint
    {
        /// <summary>Key pixels become <c>colour</c>.</summary>
        Key = 0,
        /// <summary>All others become <c>colour</c>.</summary>
        Rest = 1,
        /// <summary>All others become <c>colour</c>, with a border on either side of the key.</summary>
        Bordered = 2,
        /// <summary>Key pixels with a neighbour that is not key become <c>colour</c>.</summary>
        KeyRim = 3,
        /// <summary>Others with a neighbour that is key become <c>colour</c>.</summary>
        Outline = 4,
        /// <summary>Connected regions of few key pixels become <c>colour</c>.</summary>
        SmallRegions = 5,
        /// <summary>Key pixels take the commonest of their neighbours' colours.</summary>
        Majority = 6,
        /// <summary>Grey pixels take the commonest of their neighbours' colours.</summary>
        Grey = 7,
        /// <summary>Pixels that are not grey become <c>colour</c>.</summary>
        Coloured = 8,
        /// <summary>Key pixels take the average of their neighbours.</summary>
        Average = 9,
        /// <summary>Pixels p with <c>(p &amp; extra) == key</c> become <c>colour</c>.</summary>
        Masked = 10,
    }

    /// <summary>Widths of a stored sample.</summary>
    public enum SampleBits
    {
        /// <summary>One byte, 128 is silence.</summary>
        Bits8 = 8,
        /// <summary>Signed, little-endian, two bytes.</summary>
        Bits16 = 16,
        /// <summary>Signed, little-endian, three bytes.</summary>
        Bits24 = 24,
        /// <summary>A double, -1 to 1.</summary>
        Bits64 = 64,
    }

    /// <summary>Samples a frame.</summary>
    public enum Channels
    {
        /// <summary>One sample.</summary>
        Mono = 1,
        /// <summary>Left, then right.</summary>
        Stereo = 2,
    }

    /// <summary>Sizes that the reverb is built on.</summary>
    public enum Reverb
    {
        /// <summary>Frames of the ring, of two doubles each: 8 MiB.</summary>
        RingFrames = 524288,
        /// <summary>Entries of each of the three parts of a tap table.</summary>
        Taps = 10000,
    }
}
