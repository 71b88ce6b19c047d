// Paints an evening by the sea and saves it as a bitmap file: node evening.js [FILE]
'use strict';

const fs = require('fs');
const t = require('..');

const width = 480, height = 300, horizon = 180;
const picture = new t.Image(width, height), light = new t.Image(width, height);

// The sky: a colour for each corner.
t.BBIDrawBox(picture, 0, 0, width, horizon, 0, 0xff1a2a52, 0xff2a3266, 0xfff08a4b, 0xfff8b45f);

// The sun: rings from black to the inner colour, added to the sky.
const rings = new t.Image(64, 1);
for (let i = 0; i < 64; ++i) {
  const warm = Math.round(255 * (i / 63) ** 3);
  rings.row(0).set([warm >> 2, (warm * 3) >> 2, warm, 255], 4 * i);
}
t.BBIDrawLineCircle(light, rings, 180, -10, 480, 290);
t.BBIBltAdd(picture, light, 0, 0, width, horizon, 0, 0);

// Mountains, far ones first.
for (const [left, top, right, colour] of [[-40, 95, 200, 0xff5b4a72], [90, 120, 300, 0xff4a3d66], [-90, 130, 120, 0xff33294d]])
  t.BBIDrawTriangle(picture, left, horizon, right, horizon, (left + right) >> 1, top, 0, colour);

// The sea: the sky upside down, blurred along its rows, and darker.
const sea = new t.Image(width, height);
for (let y = 0; y < height - horizon; ++y) t.BBIBlt(sea, picture, 0, y, width, 1, 0, horizon - 1 - y);
t.BBIBltUBlur(picture, sea, 0, horizon, width, height - horizon, 0, 0, 24);
t.BBIDrawColorFill(light, 0, 0, width, height, 0, 0xffb0a0a8);
t.BBIBltMul(picture, light, 0, horizon, width, height - horizon, 0, 0);

const pixels = Buffer.concat(Array.from({ length: height }, (_, y) => picture.row(y)));
const stream = t.encode('inda', pixels);
console.log(`${pixels.length} bytes of pixels are ${stream.length} as a stream`);
if (!pixels.equals(t.decode('inda', stream, pixels.length))) throw new Error('the stream is not what it was made from');

// A bitmap file of 32 bits a pixel, its rows downwards.
const head = Buffer.alloc(54);
head.write('BM');
head.writeUInt32LE(54 + pixels.length, 2);
head.writeUInt32LE(54, 10);
head.writeUInt32LE(40, 14);
head.writeInt32LE(width, 18);
head.writeInt32LE(-height, 22);
head.writeUInt16LE(1, 26);
head.writeUInt16LE(32, 28);
const file = process.argv[2] || 'evening.bmp';
fs.writeFileSync(file, Buffer.concat([head, pixels]));
console.log(`${file} written`);
