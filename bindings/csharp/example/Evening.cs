// Paints an evening by the sea and saves it as a bitmap file: Evening.exe [FILE]
using System;
using System.IO;
using Tessaro;
using static Tessaro.Functions;

static class Evening
{
    const int width = 480, height = 300, horizon = 180;

    static void Mountain(Image picture, int left, int top, int right, uint colour) =>
        BBIDrawTriangle(picture, left, horizon, right, horizon, (left + right) >> 1, top, 0, colour);

    static void Main(string[] arguments)
    {
        Image picture = new Image(width, height), light = new Image(width, height);

        // The sky: a colour for each corner.
        BBIDrawBox(picture, 0, 0, width, horizon, 0, 0xFF1A2A52, 0xFF2A3266, 0xFFF08A4B, 0xFFF8B45F);

        // The sun: rings from black to the inner colour, added to the sky.
        var rings = new Image(64, 1);
        for (int i = 0; i < 64; ++i)
        {
            var warm = (uint)Math.Round(255 * Math.Pow(i / 63.0, 3));
            rings[i, 0] = 0xFF000000 | warm << 16 | warm * 3 / 4 << 8 | warm / 4;
        }
        BBIDrawLineCircle(light, rings, 180, -10, 480, 290);
        BBIBltAdd(picture, light, 0, 0, width, horizon, 0, 0);

        // Mountains, far ones first.
        Mountain(picture, -40, 95, 200, 0xFF5B4A72);
        Mountain(picture, 90, 120, 300, 0xFF4A3D66);
        Mountain(picture, -90, 130, 120, 0xFF33294D);

        // The sea: the sky upside down, blurred along its rows, and darker.
        var sea = new Image(width, height);
        for (int y = 0; y < height - horizon; ++y) BBIBlt(sea, picture, 0, y, width, 1, 0, horizon - 1 - y);
        BBIBltUBlur(picture, sea, 0, horizon, width, height - horizon, 0, 0, 24);
        BBIDrawColorFill(light, 0, 0, width, height, 0, 0xFFB0A0A8);
        BBIBltMul(picture, light, 0, horizon, width, height - horizon, 0, 0);

        ReadOnlySpan<byte> pixels = picture.Memory.AsSpan(16);
        byte[] stream = Streams.Encode(Codec.Inda, pixels);
        Console.WriteLine($"{pixels.Length} bytes of pixels are {stream.Length} as a stream");
        if (!pixels.SequenceEqual(Streams.Decode(Codec.Inda, stream, pixels.Length)))
            throw new InvalidDataException("the stream is not what it was made from");

        // A bitmap file of 32 bits a pixel, its rows downwards.
        string file = arguments.Length > 0 ? arguments[0] : "evening.bmp";
        using (var to = new BinaryWriter(File.Create(file)))
        {
            to.Write(new[] { (byte)'B', (byte)'M' });
            to.Write(54 + pixels.Length);
            to.Write(0);
            to.Write(54);
            to.Write(40);
            to.Write(width);
            to.Write(-height);
            to.Write(32 << 16 | 1);
            for (int i = 0; i < 6; ++i) to.Write(0);
            to.Write(pixels.ToArray());
        }
        Console.WriteLine($"{file} written");
    }
}
