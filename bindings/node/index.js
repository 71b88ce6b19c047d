// Raster images, byte-stream codecs and waveforms: all functions of the library by name, and images, sounds and streams.
'use strict';

const { image } = require('./lib/arguments.js');
const { codecs, ...functions } = require('./lib/functions.js');
const constants = require('./lib/constants.js');

const headSize = 16;

/** An image record with its pixels, in one block of memory. */
class Image {
  constructor(width, height) {
    if (!(width >= 1 && width <= 8191 && height >= 1 && height <= 32767))
      throw new RangeError(`an image is 1..8191 pixels wide and 1..32767 high, not ${width} x ${height}: cut a larger one in parts`);
    this.memory = new Uint8Array(headSize + 4 * width * height);
    this.offset = 0;
    new Int16Array(this.memory.buffer, 0, 5).set([4, headSize, width, height, 4 * width]);
  }

  /** The image whose record lies at an offset of the host's own memory. */
  static at(memory, offset = 0) {
    const made = Object.assign(Object.create(Image.prototype), { memory, offset });
    image('memory', made);
    return made;
  }

  get width() { return image('image', this).width; }
  get height() { return image('image', this).height; }

  /** The bytes blue, green, red and alpha of each pixel of a row; changes show in the image. */
  row(y) {
    const { width, height, pitch, first } = image('image', this);
    if (!(Number.isInteger(y) && y >= 0 && y < height)) throw new RangeError(`row ${y} of ${height}`);
    const begin = this.memory.byteOffset + first + pitch * y;
    return new Uint8Array(this.memory.buffer, begin, 4 * width);
  }
}

/** Compresses bytes by one of the stream formats, as "inabe" or "ib18_ex"; null where they do not get smaller. */
function encode(codec, data) {
  const { encoder } = coder(codec);
  const room = new Uint8Array(data.byteLength + (data.byteLength >>> 5) + 64), written = new Uint32Array(1);
  return encoder(data, room, data.byteLength, written) === 0 ? room.slice(0, written[0]) : null;
}

/** The `length` bytes that a stream was made from; throws where it is damaged. */
function decode(codec, stream, length) {
  const made = new Uint8Array(length);
  if (coder(codec).decoder(stream, made, stream.byteLength, length) !== 0) throw new Error(`the stream of ${codec} is damaged`);
  return made;
}

function coder(codec) {
  if (!Object.hasOwn(codecs, codec)) throw new RangeError(`there is no codec "${codec}"`);
  return codecs[codec];
}

module.exports = { ...functions, ...constants, Image, encode, decode };
