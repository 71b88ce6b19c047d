// What every argument goes through on its way to the library: no call reads or writes outside the memory it is given.
'use strict';

const koffi = require('koffi');

// What classic decoders are given for a stream when they are to make nothing, and what stands for memory of no bytes.
exports.nothing = new Uint8Array(4096);

function whole(name, value, low, high) {
  if (!Number.isInteger(value)) throw new TypeError(`${name} must be a whole number, not ${value}`);
  if (value < low || value > high) throw new RangeError(`${name} must be ${low}..${high}, not ${value}`);
  return value;
}

// Words without a sign, as colours are, may be given for any 32 bits.
exports.int32_t = (name, value) => whole(name, value, -0x80000000, 0xffffffff) | 0;
exports.uint32_t = (name, value) => whole(name, value, -0x80000000, 0xffffffff) >>> 0;
exports.intptr_t = (name, value) => typeof value === 'bigint' ? value
  : whole(name, value, Number.MIN_SAFE_INTEGER, Number.MAX_SAFE_INTEGER);

exports.real = (name, value) => {
  if (typeof value !== 'number') throw new TypeError(`${name} must be a number, not ${typeof value}`);
  return value;
};

exports.within = (name, value, low, high) =>
  whole(name, value, low === null ? -Infinity : low, high === null ? Infinity : high);

exports.ceilDiv = (x, y) => Math.ceil(x / y);
exports.bytesOf = (format) => ({ 8888: 4, 888: 3, 565: 2, 555: 2, 1555: 2, 4444: 2 })[format] || 0;

// The bytes of a typed array, a DataView or a Buffer.
function bytes(name, value) {
  if (!ArrayBuffer.isView(value)) throw new TypeError(`${name} must be a typed array or a Buffer`);
  return new Uint8Array(value.buffer, value.byteOffset, value.byteLength);
}

// A pointer into memory of at least `size` bytes, which begins at `begin` seen from the pointer.
exports.memory = (name, value, size, begin = 0) => {
  const all = bytes(name, value);
  if (all.length < size) throw new RangeError(`${name}: ${size} bytes are needed, ${all.length} given`);
  if (all.length === 0) return exports.nothing;
  return size > 0 && begin !== 0 ? all.subarray(-begin) : all;
};

// Text that ends with a zero: a short one gets it here.
exports.text = (name, value, size) => {
  const all = typeof value === 'string' ? Buffer.from(value) : bytes(name, value);
  if (all.length >= size || all.includes(0)) return all;
  const ended = new Uint8Array(size);
  ended.set(all);
  return ended;
};

// Memory from whose start words are counted.
exports.word = (name, value, index, width) => {
  const all = bytes(name, value);
  if (!(index >= 0 && (index + 1) * width <= all.length))
    throw new RangeError(`${name}: word ${index} lies outside of ${all.length} bytes`);
  return all;
};

// The record of an image, or at the start of memory. It is looked at with each call, since it lies in the host's memory.
exports.image = (name, value) => {
  const at = value !== null && typeof value === 'object' && 'memory' in value ? value : { memory: value, offset: 0 };
  const all = bytes(name, at.memory);
  const view = new DataView(all.buffer, all.byteOffset, all.byteLength);
  const inside = (what, start, size) => {
    if (!(start >= 0 && start + size <= all.length))
      throw new RangeError(`${name}: the image record lies: ${what} would be bytes ${start}..${start + size - 1} of a memory ` +
                           `of ${all.length} bytes`);
  };
  inside('the record', at.offset, 4);
  const dims = at.offset + view.getInt16(at.offset, true);
  inside('the dimensions', dims, 6);
  const first = at.offset + view.getInt16(at.offset + 2, true);
  const width = view.getInt16(dims, true), height = view.getInt16(dims + 2, true), pitch = view.getInt16(dims + 4, true);
  if (width > 0 && height > 0) {
    const low = first + Math.min(0, pitch * (height - 1));
    const size = Math.abs(pitch) * (height - 1) + 4 * width;
    inside('the pixels', low, size);
    for (const [what, start, length] of [['record', at.offset, 4], ['dimensions', dims, 6]])
      if (start < low + size && start + length > low)
        throw new RangeError(`${name}: the image record lies: its pixels would cover its ${what}`);
  }
  return { pointer: all.subarray(at.offset), width, height, pitch, first };
};

// A wave buffer whose samples are there.
exports.sound = (name, value, least = 0) => {
  const format = exports.int32_t(`${name}.format`, value.format), count = exports.int32_t(`${name}.count`, value.count);
  const data = bytes(`${name}.data`, value.data);
  const bits = format & 0xf8, channels = format & 7;
  const stored = [8, 16, 24, 64].includes(bits) && [1, 2].includes(channels) ? Math.max(count, 0) * (bits / 8) * channels : 0;
  const size = Math.max(stored, least);
  if (data.length < size) throw new RangeError(`${name}: ${size} bytes of samples are needed, ${data.length} given`);
  return { format, count, data: data.length === 0 ? exports.nothing : data };
};

// A function that the library calls while it is called itself; one that it keeps lasts.
exports.callback = (value, type) => type === 'TessaroHook' ? koffi.register(value, `${type} *`) : value;

exports.promise = (native, ...values) => {
  const lasting = values.map((one) => typeof one === 'function' ? koffi.register(one, 'TessaroWorker *') : one);
  return new Promise((resolve, reject) => native.async(...lasting, (error, result) => {
    for (const one of lasting) koffi.unregister(one);
    if (error) reject(error);
    else resolve(result);
  }));
};
