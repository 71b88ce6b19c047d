// Functions of JavaScript that the library calls: in the same thread, and in that of the worker.
'use strict';

const assert = require('assert');
const tessaro = require('..');

assert.strictEqual(tessaro.dllMethod1((a) => a + 1, 41), 42);
assert.strictEqual(tessaro.dllMethod4((a, b, c, d) => a * 1000 + b * 100 + c * 10 + d, 1, 2, 3, 4), 1234);
assert.throws(() => tessaro.BBIClear(new tessaro.Image(2, 2), 0.5, 0, 0, 0), TypeError);
assert.throws(() => new tessaro.Image(8192, 1), RangeError);
assert.throws(() => tessaro.decode('inabe', new Uint8Array(3), 500), /damaged/);
assert.throws(() => tessaro.encode('iwave11', new Uint8Array(3)), RangeError);

let turns = 0;
(async () => {
  const ended = tessaro.ThreadBegin(() => { turns += 1; });
  while (turns < 3) await new Promise((later) => setTimeout(later, 1));
  assert.strictEqual(await tessaro.ThreadKill(), 0);
  assert.strictEqual(await ended, 0);
  console.log(`the worker called ${turns} times`);
})();
