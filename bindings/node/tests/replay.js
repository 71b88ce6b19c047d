// Replays the recorded calls through the checked functions, and compares results and memory: replay.js CALLS
// Then again with each block a byte too short, which has to be refused, or the byte is neither needed nor touched.
'use strict';

const fs = require('fs');
const tessaro = require('..');

function memoryOf(words) {
  return Buffer.concat(words.map((word) => {
    const [value, count] = word.split('*');
    return count === undefined ? Buffer.from(value, 'hex') : Buffer.alloc(Number(count), parseInt(value, 16));
  }));
}

const fence = Buffer.alloc(16, 0xa5);

// With `cut`, that block is a byte too short; the byte belongs to the fence behind it.
function replay(lines, cut) {
  const name = lines[0][1], blocks = [], given = [], wrong = [];
  let expected, before;
  for (const [kind, ...words] of lines.slice(1)) {
    const block = blocks[words[0]], offset = Number(words[1]);
    if (kind === 'block') {
      const whole = Buffer.concat([memoryOf(words.slice(1)), fence]);
      const size = whole.length - fence.length - (cut === blocks.length ? 1 : 0);
      if (size < 0) return null;
      blocks.push({ whole, data: whole.subarray(0, size) });
    } else if (kind === 'image') given.push(tessaro.Image.at(block.data, offset));
    else if (kind === 'memory') given.push(block.data);
    else if (kind === 'sound') given.push({ format: offset, count: Number(words[2]), data: block.data });
    else if (kind === 'number') given.push(Number(words[0]));
    else if (kind === 'float') given.push(Buffer.from(words[0], 'hex').readFloatBE());
    else if (kind === 'double') given.push(Buffer.from(words[0], 'hex').readDoubleBE());
    else if (kind === 'result') {
      expected = blocks.map((one) => Buffer.from(one.whole));
      before = blocks.map((one) => Buffer.from(one.whole.subarray(one.data.length)));
      const result = tessaro[name](...given);
      if (words[0] !== 'void' && result !== offset) wrong.push(`result ${result}, recorded ${offset}`);
    } else if (kind === 'after') expected[words[0]] = Buffer.concat([memoryOf(words.slice(1)), fence]);
    else if (kind === 'any') expected[words[0]] = block.whole;
  }
  blocks.forEach((one, b) => {
    if (!one.whole.subarray(one.data.length).equals(before[b])) wrong.push(`fence ${b} differs`);
    else if (!one.whole.equals(expected[b])) wrong.push(`block ${b} differs`);
  });
  return wrong;
}

const [first, ...calls] = fs.readFileSync(process.argv[2], 'latin1').split('\n\n');
if (first !== 'tessaro calls 1') throw new Error('not a set of calls');
let failed = 0, cuts = 0, refused = 0;
calls.forEach((text, at) => {
  const lines = text.split('\n').filter(Boolean).map((line) => line.split(' '));
  const tell = (what) => {
    console.log(`call ${at + 1}, ${lines[0][1]}: ${what}`);
    failed += 1;
  };
  try {
    const wrong = replay(lines);
    if (wrong.length > 0) tell(wrong.join('; '));
  } catch (error) {
    tell(error.message);
  }
  const blocks = lines.filter(([kind]) => kind === 'block').length;
  for (let cut = 0; cut < blocks; ++cut) {
    try {
      const wrong = replay(lines, cut);
      if (wrong === null) continue;
      cuts += 1;
      if (wrong.some((what) => what.startsWith('fence'))) tell(`block ${cut} a byte too short: ${wrong.join('; ')}`);
    } catch (error) {
      if (!(error instanceof RangeError)) throw error;
      cuts += 1;
      refused += 1;
    }
  }
});
console.log(`${calls.length} calls replayed, ${failed} came out otherwise; ${refused} of ${cuts} short blocks refused`);
process.exitCode = failed > 0 || calls.length === 0 || refused < 0.9 * cuts ? 1 : 0;
