// Replays the recorded calls through the checked functions, and compares results and memory: Replay.exe CALLS
// Then again with each block a byte too short, which has to be refused, or the byte is neither needed nor touched.
using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Linq;
using Tessaro;

struct Argument
{
    public Image Image;
    public Sound Sound;
    public Memory<byte> Memory;
    public long Number;
    public double Real;
    public Span<byte> Bytes => Memory.Span;
}

static class Replay
{
    static byte[] MemoryOf(IEnumerable<string> words)
    {
        var made = new MemoryStream();
        foreach (string word in words)
        {
            int star = word.IndexOf('*');
            if (star >= 0)
                made.Write(Enumerable.Repeat(Convert.ToByte(word.Substring(0, 2), 16), int.Parse(word.Substring(star + 1))).ToArray());
            else
                for (int i = 0; i < word.Length; i += 2) made.WriteByte(Convert.ToByte(word.Substring(i, 2), 16));
        }
        return made.ToArray();
    }

    // What is not as it was recorded; null where block `cut` has no byte to lose.
    static string Call(string[][] lines, int cut)
    {
        string name = lines[0][1], wrong = "";
        var blocks = new List<byte[]>();
        var given = new List<Argument>();
        byte[][] expected = null;
        foreach (string[] line in lines.Skip(1))
        {
            int b = line[0] == "block" || line[0] == "result" ? 0 : int.TryParse(line[1], out b) ? b : 0;
            switch (line[0])
            {
                case "block":
                    byte[] block = MemoryOf(line.Skip(2));
                    if (blocks.Count == cut)
                    {
                        if (block.Length == 0) return null;
                        Array.Resize(ref block, block.Length - 1);  // an array has no room for the byte: it has to be refused
                    }
                    blocks.Add(block);
                    break;
                case "image": given.Add(new Argument { Image = new Image(blocks[b], int.Parse(line[2])) }); break;
                case "memory": given.Add(new Argument { Memory = blocks[b] }); break;
                case "sound":
                    given.Add(new Argument { Sound = new Sound(int.Parse(line[2]), int.Parse(line[3]), blocks[b]) });
                    break;
                case "number": given.Add(new Argument { Number = long.Parse(line[1]) }); break;
                case "float":
                    uint bits = uint.Parse(line[1], NumberStyles.HexNumber);
                    given.Add(new Argument { Real = BitConverter.ToSingle(BitConverter.GetBytes(bits), 0) });
                    break;
                case "double":
                    given.Add(new Argument { Real = BitConverter.Int64BitsToDouble(long.Parse(line[1], NumberStyles.HexNumber)) });
                    break;
                case "result":
                    expected = blocks.Select(one => (byte[])one.Clone()).ToArray();
                    long result = Calls.Make(name, given.ToArray());
                    if (result != long.Parse(line[2])) wrong += $"result {result}, recorded {line[2]}; ";
                    break;
                case "after": expected[b] = MemoryOf(line.Skip(2)); break;
                case "any": expected[b] = blocks[b]; break;
            }
        }
        for (int b = 0; b < blocks.Count; ++b)
            if (!blocks[b].AsSpan().SequenceEqual(expected[b])) wrong += $"block {b} differs; ";
        return wrong;
    }

    static int Main(string[] arguments)
    {
        string[] calls = File.ReadAllText(arguments[0]).Split(new[] { "\n\n" }, StringSplitOptions.None);
        if (calls[0] != "tessaro calls 1") throw new InvalidDataException("not a set of calls");
        int failed = 0, cuts = 0, refused = 0;
        for (int at = 1; at < calls.Length; ++at)
        {
            string[][] lines = calls[at].Trim().Split('\n').Select(line => line.Split(' ')).ToArray();
            string wrong;
            try { wrong = Call(lines, -1); }
            catch (ArgumentException error) { wrong = error.Message; }
            if (wrong != "")
            {
                Console.WriteLine($"call {at}, {lines[0][1]}: {wrong}");
                ++failed;
            }
            for (int cut = 0; cut < lines.Count(line => line[0] == "block"); ++cut)
            {
                try
                {
                    if (Call(lines, cut) != null) ++cuts;
                }
                catch (Exception error) when (error is ArgumentException || error is IndexOutOfRangeException)
                {
                    ++cuts;
                    ++refused;
                }
            }
        }
        Console.WriteLine($"{calls.Length - 1} calls replayed, {failed} came out otherwise; {refused} of {cuts} short blocks refused");
        return failed > 0 || calls.Length < 2 || refused < cuts * 0.9 ? 1 : 0;
    }
}
