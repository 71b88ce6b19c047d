// Made by bindings/node/generate.py from the description of the functions. Do not edit.
'use strict';

const check = require('./arguments.js');
const { declare, prototype } = require('./library.js');

prototype('TessaroMethod1', 'cdecl', 'intptr_t', ['intptr_t']);
prototype('TessaroMethod4', 'cdecl', 'intptr_t', ['intptr_t', 'intptr_t', 'intptr_t', 'intptr_t']);
prototype('TessaroCallback2', 'library', 'intptr_t', ['intptr_t', 'intptr_t']);
prototype('TessaroWorker', 'cdecl', 'void', []);
prototype('TessaroHook', 'library', 'int32_t', ['void*', 'uintptr_t', 'uintptr_t', 'intptr_t', 'intptr_t']);

const iwave11Encoder_ = declare('iwave11Encoder', 'int32_t', ['void *', 'void *', 'uint32_t', 'void *']);
exports.iwave11Encoder = (source, destination, length, written) => {
  length = check.uint32_t('length', length);
  return iwave11Encoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length,
    check.memory('written', written, 4));
};

const iwave11Decoder_ = declare('iwave11Decoder', 'int32_t', ['void *', 'void *', 'uint32_t']);
exports.iwave11Decoder = (source, destination, length) => {
  length = check.uint32_t('length', length);
  return iwave11Decoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length);
};

const iwave12Encoder_ = declare('iwave12Encoder', 'int32_t', ['void *', 'void *', 'uint32_t', 'void *']);
exports.iwave12Encoder = (source, destination, length, written) => {
  length = check.uint32_t('length', length);
  return iwave12Encoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length,
    check.memory('written', written, 4));
};

const iwave12Decoder_ = declare('iwave12Decoder', 'int32_t', ['void *', 'void *', 'uint32_t']);
exports.iwave12Decoder = (source, destination, length) => {
  length = check.uint32_t('length', length);
  return iwave12Decoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length);
};

const iwave32Encoder_ = declare('iwave32Encoder', 'int32_t', ['void *', 'void *', 'uint32_t', 'void *']);
exports.iwave32Encoder = (source, destination, length, written) => {
  length = check.uint32_t('length', length);
  return iwave32Encoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length,
    check.memory('written', written, 4));
};

const iwave32Decoder_ = declare('iwave32Decoder', 'int32_t', ['void *', 'void *', 'uint32_t']);
exports.iwave32Decoder = (source, destination, length) => {
  length = check.uint32_t('length', length);
  return iwave32Decoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length);
};

const iwave21Encoder_ = declare('iwave21Encoder', 'int32_t', ['void *', 'void *', 'uint32_t', 'void *']);
exports.iwave21Encoder = (source, destination, length, written) => {
  length = check.uint32_t('length', length);
  return iwave21Encoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length,
    check.memory('written', written, 4));
};

const iwave21Decoder_ = declare('iwave21Decoder', 'int32_t', ['void *', 'void *', 'uint32_t']);
exports.iwave21Decoder = (source, destination, length) => {
  length = check.uint32_t('length', length);
  return iwave21Decoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length);
};

const iwave22Encoder_ = declare('iwave22Encoder', 'int32_t', ['void *', 'void *', 'uint32_t', 'void *']);
exports.iwave22Encoder = (source, destination, length, written) => {
  length = check.uint32_t('length', length);
  return iwave22Encoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length,
    check.memory('written', written, 4));
};

const iwave22Decoder_ = declare('iwave22Decoder', 'int32_t', ['void *', 'void *', 'uint32_t']);
exports.iwave22Decoder = (source, destination, length) => {
  length = check.uint32_t('length', length);
  return iwave22Decoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length);
};

const ichshift2Encoder_ = declare('ichshift2Encoder', 'int32_t', ['void *', 'void *', 'uint32_t', 'void *']);
exports.ichshift2Encoder = (source, destination, length, written) => {
  length = check.uint32_t('length', length);
  return ichshift2Encoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length,
    check.memory('written', written, 4));
};

const ichshift2Decoder_ = declare('ichshift2Decoder', 'int32_t', ['void *', 'void *', 'uint32_t']);
exports.ichshift2Decoder = (source, destination, length) => {
  length = check.uint32_t('length', length);
  return ichshift2Decoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length);
};

const ichshift3Encoder_ = declare('ichshift3Encoder', 'int32_t', ['void *', 'void *', 'uint32_t', 'void *']);
exports.ichshift3Encoder = (source, destination, length, written) => {
  length = check.uint32_t('length', length);
  return ichshift3Encoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length,
    check.memory('written', written, 4));
};

const ichshift3Decoder_ = declare('ichshift3Decoder', 'int32_t', ['void *', 'void *', 'uint32_t']);
exports.ichshift3Decoder = (source, destination, length) => {
  length = check.uint32_t('length', length);
  return ichshift3Decoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length);
};

const ichshift4Encoder_ = declare('ichshift4Encoder', 'int32_t', ['void *', 'void *', 'uint32_t', 'void *']);
exports.ichshift4Encoder = (source, destination, length, written) => {
  length = check.uint32_t('length', length);
  return ichshift4Encoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length,
    check.memory('written', written, 4));
};

const ichshift4Decoder_ = declare('ichshift4Decoder', 'int32_t', ['void *', 'void *', 'uint32_t']);
exports.ichshift4Decoder = (source, destination, length) => {
  length = check.uint32_t('length', length);
  return ichshift4Decoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length);
};

const iEncoder_ = declare('iEncoder', 'int32_t', ['void *', 'void *', 'uint32_t', 'void *']);
exports.iEncoder = (source, destination, length, written) => {
  length = check.uint32_t('length', length);
  return iEncoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length,
    check.memory('written', written, 4));
};

const iDecoder_ = declare('iDecoder', 'int32_t', ['void *', 'void *', 'uint32_t']);
exports.iDecoder = (stream, destination, count) => {
  if (count === 0) return iDecoder_(check.nothing, check.memory('destination', destination, 0), 0);
  return exports.iDecoderSafe(stream, destination, stream.byteLength, count);
};

const iDecoderSafe_ = declare('iDecoderSafe', 'int32_t', ['void *', 'void *', 'uint32_t', 'uint32_t']);
exports.iDecoderSafe = (stream, destination, stream_size, count) => {
  stream_size = check.uint32_t('stream_size', stream_size);
  count = check.uint32_t('count', count);
  return iDecoderSafe_(
    check.memory('stream', stream, stream_size),
    check.memory('destination', destination, count),
    stream_size,
    count);
};

const ioEncoder_ = declare('ioEncoder', 'int32_t', ['void *', 'void *', 'uint32_t', 'void *']);
exports.ioEncoder = (source, destination, length, written) => {
  length = check.uint32_t('length', length);
  return ioEncoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length,
    check.memory('written', written, 4));
};

const ioDecoder_ = declare('ioDecoder', 'int32_t', ['void *', 'void *', 'uint32_t']);
exports.ioDecoder = (stream, destination, count) => {
  if (count === 0) return ioDecoder_(check.nothing, check.memory('destination', destination, 0), 0);
  return exports.ioDecoderSafe(stream, destination, stream.byteLength, count);
};

const ioDecoderSafe_ = declare('ioDecoderSafe', 'int32_t', ['void *', 'void *', 'uint32_t', 'uint32_t']);
exports.ioDecoderSafe = (stream, destination, stream_size, count) => {
  stream_size = check.uint32_t('stream_size', stream_size);
  count = check.uint32_t('count', count);
  return ioDecoderSafe_(
    check.memory('stream', stream, stream_size),
    check.memory('destination', destination, count),
    stream_size,
    count);
};

const ib18Encoder_ = declare('ib18Encoder', 'int32_t', ['void *', 'void *', 'uint32_t', 'void *']);
exports.ib18Encoder = (source, destination, length, written) => {
  length = check.uint32_t('length', length);
  return ib18Encoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length,
    check.memory('written', written, 4));
};

const ib18Decoder_ = declare('ib18Decoder', 'int32_t', ['void *', 'void *', 'uint32_t']);
exports.ib18Decoder = (stream, destination, count) => {
  if (count === 0) return ib18Decoder_(check.nothing, check.memory('destination', destination, 0), 0);
  return exports.ib18DecoderSafe(stream, destination, stream.byteLength, count);
};

const ib18DecoderSafe_ = declare('ib18DecoderSafe', 'int32_t', ['void *', 'void *', 'uint32_t', 'uint32_t']);
exports.ib18DecoderSafe = (stream, destination, stream_size, count) => {
  stream_size = check.uint32_t('stream_size', stream_size);
  count = check.uint32_t('count', count);
  return ib18DecoderSafe_(
    check.memory('stream', stream, stream_size),
    check.memory('destination', destination, count),
    stream_size,
    count);
};

const ib18EncoderEx_ = declare('ib18EncoderEx', 'int32_t', ['void *', 'void *', 'uint32_t', 'void *']);
exports.ib18EncoderEx = (source, destination, length, written) => {
  length = check.uint32_t('length', length);
  return ib18EncoderEx_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length,
    check.memory('written', written, 4));
};

const ib18DecoderEx_ = declare('ib18DecoderEx', 'int32_t', ['void *', 'void *', 'uint32_t']);
exports.ib18DecoderEx = (stream, destination, count) => {
  if (count === 0) return ib18DecoderEx_(check.nothing, check.memory('destination', destination, 0), 0);
  return exports.ib18DecoderExSafe(stream, destination, stream.byteLength, count);
};

const ib18DecoderExSafe_ = declare('ib18DecoderExSafe', 'int32_t', ['void *', 'void *', 'uint32_t', 'uint32_t']);
exports.ib18DecoderExSafe = (stream, destination, stream_size, count) => {
  stream_size = check.uint32_t('stream_size', stream_size);
  count = check.uint32_t('count', count);
  return ib18DecoderExSafe_(
    check.memory('stream', stream, stream_size),
    check.memory('destination', destination, count),
    stream_size,
    count);
};

const iabrEncoder_ = declare('iabrEncoder', 'int32_t', ['void *', 'void *', 'uint32_t', 'void *']);
exports.iabrEncoder = (source, destination, length, written) => {
  length = check.uint32_t('length', length);
  return iabrEncoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length,
    check.memory('written', written, 4));
};

const iabrDecoder_ = declare('iabrDecoder', 'int32_t', ['void *', 'void *', 'uint32_t']);
exports.iabrDecoder = (stream, destination, count) => {
  if (count === 0) return iabrDecoder_(check.nothing, check.memory('destination', destination, 0), 0);
  return exports.iabrDecoderSafe(stream, destination, stream.byteLength, count);
};

const iabrDecoderSafe_ = declare('iabrDecoderSafe', 'int32_t', ['void *', 'void *', 'uint32_t', 'uint32_t']);
exports.iabrDecoderSafe = (stream, destination, stream_size, count) => {
  stream_size = check.uint32_t('stream_size', stream_size);
  count = check.uint32_t('count', count);
  return iabrDecoderSafe_(
    check.memory('stream', stream, stream_size),
    check.memory('destination', destination, count),
    stream_size,
    count);
};

const inabeEncoder_ = declare('inabeEncoder', 'int32_t', ['void *', 'void *', 'uint32_t', 'void *']);
exports.inabeEncoder = (source, destination, length, written) => {
  length = check.uint32_t('length', length);
  return inabeEncoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length,
    check.memory('written', written, 4));
};

const inabeDecoder_ = declare('inabeDecoder', 'int32_t', ['void *', 'void *', 'uint32_t']);
exports.inabeDecoder = (stream, destination, count) => {
  if (count === 0) return inabeDecoder_(check.nothing, check.memory('destination', destination, 0), 0);
  return exports.inabeDecoderSafe(stream, destination, stream.byteLength, count);
};

const inabeDecoderEx_ = declare('inabeDecoderEx', 'int32_t', ['void *', 'void *', 'uint32_t']);
exports.inabeDecoderEx = (stream, destination, count) => {
  if (count === 0) return inabeDecoderEx_(check.nothing, check.memory('destination', destination, 0), 0);
  return exports.inabeDecoderExSafe(stream, destination, stream.byteLength, count);
};

const inabeDecoderSafe_ = declare('inabeDecoderSafe', 'int32_t', ['void *', 'void *', 'uint32_t', 'uint32_t']);
exports.inabeDecoderSafe = (stream, destination, stream_size, count) => {
  stream_size = check.uint32_t('stream_size', stream_size);
  count = check.uint32_t('count', count);
  return inabeDecoderSafe_(
    check.memory('stream', stream, stream_size),
    check.memory('destination', destination, count),
    stream_size,
    count);
};

const inabeDecoderExSafe_ = declare('inabeDecoderExSafe', 'int32_t', ['void *', 'void *', 'uint32_t', 'uint32_t']);
exports.inabeDecoderExSafe = (stream, destination, stream_size, count) => {
  stream_size = check.uint32_t('stream_size', stream_size);
  count = check.uint32_t('count', count);
  return inabeDecoderExSafe_(
    check.memory('stream', stream, stream_size),
    check.memory('destination', destination, count),
    stream_size,
    count);
};

const imistEncoder_ = declare('imistEncoder', 'int32_t', ['void *', 'void *', 'uint32_t', 'void *']);
exports.imistEncoder = (source, destination, length, written) => {
  length = check.uint32_t('length', length);
  return imistEncoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length,
    check.memory('written', written, 4));
};

const imistDecoder_ = declare('imistDecoder', 'int32_t', ['void *', 'void *', 'uint32_t']);
exports.imistDecoder = (stream, destination, count) => {
  if (count === 0) return imistDecoder_(check.nothing, check.memory('destination', destination, 0), 0);
  return exports.imistDecoderSafe(stream, destination, stream.byteLength, count);
};

const imistDecoderSafe_ = declare('imistDecoderSafe', 'int32_t', ['void *', 'void *', 'uint32_t', 'uint32_t']);
exports.imistDecoderSafe = (stream, destination, stream_size, count) => {
  stream_size = check.uint32_t('stream_size', stream_size);
  count = check.uint32_t('count', count);
  return imistDecoderSafe_(
    check.memory('stream', stream, stream_size),
    check.memory('destination', destination, count),
    stream_size,
    count);
};

const indaEncoder_ = declare('indaEncoder', 'int32_t', ['void *', 'void *', 'uint32_t', 'void *']);
exports.indaEncoder = (source, destination, length, written) => {
  length = check.uint32_t('length', length);
  return indaEncoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length,
    check.memory('written', written, 4));
};

const indaDecoder_ = declare('indaDecoder', 'int32_t', ['void *', 'void *', 'uint32_t']);
exports.indaDecoder = (stream, destination, count) => {
  if (count === 0) return indaDecoder_(check.nothing, check.memory('destination', destination, 0), 0);
  return exports.indaDecoderSafe(stream, destination, stream.byteLength, count);
};

const indaDecoderSafe_ = declare('indaDecoderSafe', 'int32_t', ['void *', 'void *', 'uint32_t', 'uint32_t']);
exports.indaDecoderSafe = (stream, destination, stream_size, count) => {
  stream_size = check.uint32_t('stream_size', stream_size);
  count = check.uint32_t('count', count);
  return indaDecoderSafe_(
    check.memory('stream', stream, stream_size),
    check.memory('destination', destination, count),
    stream_size,
    count);
};

const icaEncoder_ = declare('icaEncoder', 'int32_t', ['void *', 'void *', 'uint32_t', 'void *']);
exports.icaEncoder = (source, destination, length, written) => {
  length = check.uint32_t('length', length);
  return icaEncoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length),
    length,
    check.memory('written', written, 4));
};

const icaDecoder_ = declare('icaDecoder', 'int32_t', ['void *', 'void *', 'uint32_t']);
exports.icaDecoder = (stream, destination, count) => {
  if (count === 0) return icaDecoder_(check.nothing, check.memory('destination', destination, 0), 0);
  return exports.icaDecoderSafe(stream, destination, stream.byteLength, count);
};

const icaDecoderSafe_ = declare('icaDecoderSafe', 'int32_t', ['void *', 'void *', 'uint32_t', 'uint32_t']);
exports.icaDecoderSafe = (stream, destination, stream_size, count) => {
  stream_size = check.uint32_t('stream_size', stream_size);
  count = check.uint32_t('count', count);
  return icaDecoderSafe_(
    check.memory('stream', stream, stream_size),
    check.memory('destination', destination, count),
    stream_size,
    count);
};

const c2fEncoder_ = declare('c2fEncoder', 'int32_t', ['void *', 'void *', 'uint32_t', 'void *']);
exports.c2fEncoder = (source, destination, length, written) => {
  length = check.uint32_t('length', length);
  return c2fEncoder_(
    check.memory('source', source, length),
    check.memory('destination', destination, length + check.ceilDiv(length, 32) + 3),
    length,
    check.memory('written', written, 4));
};

const c2fDecoder_ = declare('c2fDecoder', 'int32_t', ['void *', 'void *', 'uint32_t', 'uint32_t']);
exports.c2fDecoder = (stream, destination, stream_size, size) => {
  stream_size = check.uint32_t('stream_size', stream_size);
  size = check.uint32_t('size', size);
  return c2fDecoder_(
    check.memory('stream', stream, stream_size),
    check.memory('destination', destination, size),
    stream_size,
    size);
};

const DecodeImageHead_ = declare('DecodeImageHead', 'int32_t', ['void *', 'int32_t', 'void *', 'void *']);
exports.DecodeImageHead = (file, size, width, height) => {
  size = check.int32_t('size', size);
  return DecodeImageHead_(
    check.memory('file', file, size),
    size,
    check.memory('width', width, 4),
    check.memory('height', height, 4));
};

const DecodeImage_ = declare('DecodeImage', 'int32_t', ['void *', 'void *', 'int32_t']);
exports.DecodeImage = (device, file, size) => {
  size = check.int32_t('size', size);
  return DecodeImage_(check.image('device', device).pointer, check.memory('file', file, size), size);
};

const BBIDrawLine_ = declare('BBIDrawLine', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'uint32_t', 'uint32_t']);
exports.BBIDrawLine = (image, x0, y0, x1, y1, mask, colour) => {
  return BBIDrawLine_(
    check.image('image', image).pointer,
    check.int32_t('x0', x0),
    check.int32_t('y0', y0),
    check.int32_t('x1', x1),
    check.int32_t('y1', y1),
    check.uint32_t('mask', mask),
    check.uint32_t('colour', colour));
};

const BBIDotThick_ = declare('BBIDotThick', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'uint32_t', 'uint32_t']);
exports.BBIDotThick = (image, x0, y0, x1, y1, mask, colour) => {
  return BBIDotThick_(
    check.image('image', image).pointer,
    check.int32_t('x0', x0),
    check.int32_t('y0', y0),
    check.int32_t('x1', x1),
    check.int32_t('y1', y1),
    check.uint32_t('mask', mask),
    check.uint32_t('colour', colour));
};

const BBILineThick_ = declare('BBILineThick', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'uint32_t', 'uint32_t', 'int32_t']);
exports.BBILineThick = (image, x0, y0, x1, y1, mask, colour, thickness) => {
  return BBILineThick_(
    check.image('image', image).pointer,
    check.int32_t('x0', x0),
    check.int32_t('y0', y0),
    check.int32_t('x1', x1),
    check.int32_t('y1', y1),
    check.uint32_t('mask', mask),
    check.uint32_t('colour', colour),
    check.int32_t('thickness', thickness));
};

const BBIDrawGradationLine_ = declare('BBIDrawGradationLine', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIDrawGradationLine = (image, colours, x0, y0, x1, y1) => {
  return BBIDrawGradationLine_(
    check.image('image', image).pointer,
    check.image('colours', colours).pointer,
    check.int32_t('x0', x0),
    check.int32_t('y0', y0),
    check.int32_t('x1', x1),
    check.int32_t('y1', y1));
};

const BBIDrawAlphaLine_ = declare('BBIDrawAlphaLine', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIDrawAlphaLine = (image, colours, x0, y0, x1, y1) => {
  return BBIDrawAlphaLine_(
    check.image('image', image).pointer,
    check.image('colours', colours).pointer,
    check.int32_t('x0', x0),
    check.int32_t('y0', y0),
    check.int32_t('x1', x1),
    check.int32_t('y1', y1));
};

const BBIDrawColorFill_ = declare('BBIDrawColorFill', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'uint32_t', 'uint32_t']);
exports.BBIDrawColorFill = (image, x, y, cx, cy, mask, colour) => {
  return BBIDrawColorFill_(
    check.image('image', image).pointer,
    check.int32_t('x', x),
    check.int32_t('y', y),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.uint32_t('mask', mask),
    check.uint32_t('colour', colour));
};

const BBIDrawColorTile_ = declare('BBIDrawColorTile', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'uint32_t', 'int32_t', 'int32_t', 'uint32_t', 'uint32_t', 'uint32_t', 'uint32_t']);
exports.BBIDrawColorTile = (image, x, y, cx, cy, mask, tile_cx, tile_cy, colour0, colour1, colour2, colour3) => {
  return BBIDrawColorTile_(
    check.image('image', image).pointer,
    check.int32_t('x', x),
    check.int32_t('y', y),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.uint32_t('mask', mask),
    check.int32_t('tile_cx', tile_cx),
    check.int32_t('tile_cy', tile_cy),
    check.uint32_t('colour0', colour0),
    check.uint32_t('colour1', colour1),
    check.uint32_t('colour2', colour2),
    check.uint32_t('colour3', colour3));
};

const BBIDrawBox_ = declare('BBIDrawBox', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'uint32_t', 'uint32_t', 'uint32_t', 'uint32_t', 'uint32_t']);
exports.BBIDrawBox = (image, x, y, cx, cy, mask, top_left, top_right, bottom_left, bottom_right) => {
  return BBIDrawBox_(
    check.image('image', image).pointer,
    check.int32_t('x', x),
    check.int32_t('y', y),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.uint32_t('mask', mask),
    check.uint32_t('top_left', top_left),
    check.uint32_t('top_right', top_right),
    check.uint32_t('bottom_left', bottom_left),
    check.uint32_t('bottom_right', bottom_right));
};

const BBIDrawGradationBox_ = declare('BBIDrawGradationBox', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIDrawGradationBox = (image, pattern, x0, y0, x1, y1) => {
  return BBIDrawGradationBox_(
    check.image('image', image).pointer,
    check.image('pattern', pattern).pointer,
    check.int32_t('x0', x0),
    check.int32_t('y0', y0),
    check.int32_t('x1', x1),
    check.int32_t('y1', y1));
};

const BBIDrawMultiplyLineBox_ = declare('BBIDrawMultiplyLineBox', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIDrawMultiplyLineBox = (image, pattern, x0, y0, x1, y1) => {
  return BBIDrawMultiplyLineBox_(
    check.image('image', image).pointer,
    check.image('pattern', pattern).pointer,
    check.int32_t('x0', x0),
    check.int32_t('y0', y0),
    check.int32_t('x1', x1),
    check.int32_t('y1', y1));
};

const BBIDrawExclusiveLineBox_ = declare('BBIDrawExclusiveLineBox', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIDrawExclusiveLineBox = (image, pattern, x0, y0, x1, y1) => {
  return BBIDrawExclusiveLineBox_(
    check.image('image', image).pointer,
    check.image('pattern', pattern).pointer,
    check.int32_t('x0', x0),
    check.int32_t('y0', y0),
    check.int32_t('x1', x1),
    check.int32_t('y1', y1));
};

const BBIDrawTriangle_ = declare('BBIDrawTriangle', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'uint32_t', 'uint32_t']);
exports.BBIDrawTriangle = (image, x0, y0, x1, y1, x2, y2, mask, colour) => {
  return BBIDrawTriangle_(
    check.image('image', image).pointer,
    check.int32_t('x0', x0),
    check.int32_t('y0', y0),
    check.int32_t('x1', x1),
    check.int32_t('y1', y1),
    check.int32_t('x2', x2),
    check.int32_t('y2', y2),
    check.uint32_t('mask', mask),
    check.uint32_t('colour', colour));
};

const BBIDrawTriangleA_ = declare('BBIDrawTriangleA', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'uint32_t', 'uint32_t']);
exports.BBIDrawTriangleA = (image, x0, y0, x1, y1, x2, y2, mask, colour) => {
  return BBIDrawTriangleA_(
    check.image('image', image).pointer,
    check.int32_t('x0', x0),
    check.int32_t('y0', y0),
    check.int32_t('x1', x1),
    check.int32_t('y1', y1),
    check.int32_t('x2', x2),
    check.int32_t('y2', y2),
    check.uint32_t('mask', mask),
    check.uint32_t('colour', colour));
};

const BBIDrawLineCircle_ = declare('BBIDrawLineCircle', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIDrawLineCircle = (image, palette, x0, y0, x1, y1) => {
  return BBIDrawLineCircle_(
    check.image('image', image).pointer,
    check.image('palette', palette).pointer,
    check.int32_t('x0', x0),
    check.int32_t('y0', y0),
    check.int32_t('x1', x1),
    check.int32_t('y1', y1));
};

const BBIDrawPolaCircle_ = declare('BBIDrawPolaCircle', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIDrawPolaCircle = (image, palette, x0, y0, x1, y1) => {
  return BBIDrawPolaCircle_(
    check.image('image', image).pointer,
    check.image('palette', palette).pointer,
    check.int32_t('x0', x0),
    check.int32_t('y0', y0),
    check.int32_t('x1', x1),
    check.int32_t('y1', y1));
};

const GetCpuID_ = declare('GetCpuID', 'int32_t', []);
exports.GetCpuID = () => {
  return GetCpuID_();
};

const MMX_ = declare('MMX', 'int32_t', ['int32_t']);
exports.MMX = (flag) => {
  return MMX_(check.int32_t('flag', flag));
};

const BBI_ = declare('BBI', 'int32_t', ['int32_t']);
exports.BBI = (x) => {
  return BBI_(check.int32_t('x', x));
};

const wave_ = declare('wave', 'int32_t', ['int32_t']);
exports.wave = (x) => {
  return wave_(check.int32_t('x', x));
};

const SHR_ = declare('SHR', 'uint32_t', ['uint32_t', 'uint32_t']);
exports.SHR = (value, count) => {
  return SHR_(check.uint32_t('value', value), check.uint32_t('count', count));
};

const SAR_ = declare('SAR', 'int32_t', ['int32_t', 'uint32_t']);
exports.SAR = (value, count) => {
  return SAR_(check.int32_t('value', value), check.uint32_t('count', count));
};

const SHL_ = declare('SHL', 'uint32_t', ['uint32_t', 'uint32_t']);
exports.SHL = (value, count) => {
  return SHL_(check.uint32_t('value', value), check.uint32_t('count', count));
};

const GetWORD_ = declare('GetWORD', 'uint16_t', ['void *', 'int32_t']);
exports.GetWORD = (base, index) => {
  return GetWORD_(check.word('base', base, index, 2), check.int32_t('index', index));
};

const GetInt_ = declare('GetInt', 'uint16_t', ['void *', 'int32_t']);
exports.GetInt = (base, index) => {
  return GetInt_(check.word('base', base, index, 2), check.int32_t('index', index));
};

const SetWORD_ = declare('SetWORD', 'uint16_t', ['void *', 'int32_t', 'uint32_t']);
exports.SetWORD = (base, index, value) => {
  return SetWORD_(
    check.word('base', base, index, 2),
    check.int32_t('index', index),
    check.uint32_t('value', value));
};

const SetInt_ = declare('SetInt', 'uint16_t', ['void *', 'int32_t', 'uint32_t']);
exports.SetInt = (base, index, value) => {
  return SetInt_(
    check.word('base', base, index, 2),
    check.int32_t('index', index),
    check.uint32_t('value', value));
};

const GetDWORD_ = declare('GetDWORD', 'uint32_t', ['void *', 'int32_t']);
exports.GetDWORD = (base, index) => {
  return GetDWORD_(check.word('base', base, index, 4), check.int32_t('index', index));
};

const GetLong_ = declare('GetLong', 'uint32_t', ['void *', 'int32_t']);
exports.GetLong = (base, index) => {
  return GetLong_(check.word('base', base, index, 4), check.int32_t('index', index));
};

const SetDWORD_ = declare('SetDWORD', 'uint32_t', ['void *', 'int32_t', 'uint32_t']);
exports.SetDWORD = (base, index, value) => {
  return SetDWORD_(
    check.word('base', base, index, 4),
    check.int32_t('index', index),
    check.uint32_t('value', value));
};

const SetLong_ = declare('SetLong', 'uint32_t', ['void *', 'int32_t', 'uint32_t']);
exports.SetLong = (base, index, value) => {
  return SetLong_(
    check.word('base', base, index, 4),
    check.int32_t('index', index),
    check.uint32_t('value', value));
};

const dllComp_ = declare('dllComp', 'int32_t', ['void *', 'void *', 'int32_t']);
exports.dllComp = (a, b, count) => {
  count = check.int32_t('count', count);
  return dllComp_(check.memory('a', a, count), check.memory('b', b, count), count);
};

const CopyMemoryEx_ = declare('CopyMemoryEx', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t']);
exports.CopyMemoryEx = (dst, src, words, rows, pitch) => {
  words = check.int32_t('words', words);
  rows = check.int32_t('rows', rows);
  pitch = check.int32_t('pitch', pitch);
  return CopyMemoryEx_(
    check.memory('dst', dst, Math.abs(pitch) * (rows - 1) + 4 * words, Math.min(0, pitch * (rows - 1))),
    check.memory('src', src, Math.abs(pitch) * (rows - 1) + 4 * words, Math.min(0, pitch * (rows - 1))),
    words,
    rows,
    pitch);
};

const hash32A_ = declare('hash32A', 'uint32_t', ['void *']);
exports.hash32A = (text) => {
  return hash32A_(check.text('text', text, 64));
};

const hash32W_ = declare('hash32W', 'uint32_t', ['void *', 'int32_t']);
exports.hash32W = (bytes, length) => {
  length = check.int32_t('length', length);
  return hash32W_(check.memory('bytes', bytes, length), length);
};

const dwColorBlend_ = declare('dwColorBlend', 'uint32_t', ['uint32_t', 'uint32_t', 'float']);
exports.dwColorBlend = (colour0, colour1, factor) => {
  return dwColorBlend_(
    check.uint32_t('colour0', colour0),
    check.uint32_t('colour1', colour1),
    check.real('factor', factor));
};

const dllMethod1_ = declare('dllMethod1', 'intptr_t', ['TessaroMethod1 *', 'intptr_t']);
exports.dllMethod1 = (fn, a) => {
  return dllMethod1_(check.callback(fn, 'TessaroMethod1'), check.intptr_t('a', a));
};

const dllMethod4_ = declare('dllMethod4', 'intptr_t', ['TessaroMethod4 *', 'intptr_t', 'intptr_t', 'intptr_t', 'intptr_t']);
exports.dllMethod4 = (fn, a, b, c, d) => {
  return dllMethod4_(
    check.callback(fn, 'TessaroMethod4'),
    check.intptr_t('a', a),
    check.intptr_t('b', b),
    check.intptr_t('c', c),
    check.intptr_t('d', d));
};

const StdCallBack_ = declare('StdCallBack', 'intptr_t', ['TessaroCallback2 *', 'intptr_t', 'intptr_t']);
exports.StdCallBack = (fn, a, b) => {
  return StdCallBack_(check.callback(fn, 'TessaroCallback2'), check.intptr_t('a', a), check.intptr_t('b', b));
};

const GetRandom_ = declare('GetRandom', 'uint32_t', ['uint32_t']);
exports.GetRandom = (n) => {
  n = check.within('n', check.uint32_t('n', n), 1, null);
  return GetRandom_(n);
};

const ThreadBegin_ = declare('ThreadBegin', 'int32_t', ['TessaroWorker *']);
exports.ThreadBegin = (fn) => {
  return check.promise(ThreadBegin_, check.callback(fn, 'TessaroWorker'));
};

const ThreadKill_ = declare('ThreadKill', 'int32_t', []);
exports.ThreadKill = () => {
  return check.promise(ThreadKill_);
};

const WindowProcLoad_ = declare('WindowProcLoad', 'int32_t', ['void *', 'TessaroHook *', 'intptr_t']);
exports.WindowProcLoad = (window, hook, value) => {
  return WindowProcLoad_(window, check.callback(hook, 'TessaroHook'), check.intptr_t('value', value));
};

const WindowProcUnload_ = declare('WindowProcUnload', 'int32_t', ['void *']);
exports.WindowProcUnload = (window) => {
  return WindowProcUnload_(window);
};

const BBIMapUC_ = declare('BBIMapUC', 'int32_t', ['void *', 'void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIMapUC = (dst, src, map, dx, dy, cx, cy, sx, sy) => {
  return BBIMapUC_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.image('map', map).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIMapUCVA_ = declare('BBIMapUCVA', 'int32_t', ['void *', 'void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIMapUCVA = (dst, src, map, dx, dy, cx, cy, sx, sy) => {
  return BBIMapUCVA_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.image('map', map).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIMapUDVA_ = declare('BBIMapUDVA', 'int32_t', ['void *', 'void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIMapUDVA = (dst, src, map, dx, dy, cx, cy, sx, sy) => {
  return BBIMapUDVA_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.image('map', map).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIMapMCUCVA_ = declare('BBIMapMCUCVA', 'int32_t', ['void *', 'void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIMapMCUCVA = (dst, src, map, dx, dy, cx, cy, sx, sy) => {
  return BBIMapMCUCVA_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.image('map', map).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIMapMCUDVA_ = declare('BBIMapMCUDVA', 'int32_t', ['void *', 'void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIMapMCUDVA = (dst, src, map, dx, dy, cx, cy, sx, sy) => {
  return BBIMapMCUDVA_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.image('map', map).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIMapUCVC_ = declare('BBIMapUCVC', 'int32_t', ['void *', 'void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIMapUCVC = (dst, src, map, dx, dy, cx, cy, sx, sy) => {
  return BBIMapUCVC_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.image('map', map).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIMapUDVC_ = declare('BBIMapUDVC', 'int32_t', ['void *', 'void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIMapUDVC = (dst, src, map, dx, dy, cx, cy, sx, sy) => {
  return BBIMapUDVC_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.image('map', map).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIMapUCVX_ = declare('BBIMapUCVX', 'int32_t', ['void *', 'void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIMapUCVX = (dst, src, map, dx, dy, cx, cy, sx, sy) => {
  return BBIMapUCVX_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.image('map', map).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIMapUCVY_ = declare('BBIMapUCVY', 'int32_t', ['void *', 'void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIMapUCVY = (dst, src, map, dx, dy, cx, cy, sx, sy) => {
  return BBIMapUCVY_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.image('map', map).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIStencilFlip_ = declare('BBIStencilFlip', 'int32_t', ['void *', 'void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'float', 'float', 'int32_t']);
exports.BBIStencilFlip = (dst, outgoing, incoming, dx, dy, cx, cy, sx, sy, progress, softness, unused) => {
  return BBIStencilFlip_(
    check.image('dst', dst).pointer,
    check.image('outgoing', outgoing).pointer,
    check.image('incoming', incoming).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.real('progress', progress),
    check.real('softness', softness),
    check.int32_t('unused', unused));
};

const BBIStencilFlipLE_ = declare('BBIStencilFlipLE', 'int32_t', ['void *', 'void *', 'void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'float', 'float']);
exports.BBIStencilFlipLE = (dst, outgoing, incoming, stencil, dx, dy, cx, cy, sx, sy, progress, softness) => {
  return BBIStencilFlipLE_(
    check.image('dst', dst).pointer,
    check.image('outgoing', outgoing).pointer,
    check.image('incoming', incoming).pointer,
    check.image('stencil', stencil).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.real('progress', progress),
    check.real('softness', softness));
};

const BBIStencilFlipLEFix_ = declare('BBIStencilFlipLEFix', 'int32_t', ['void *', 'void *', 'void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'float', 'float']);
exports.BBIStencilFlipLEFix = (dst, incoming, outgoing, stencil, dx, dy, cx, cy, sx, sy, progress, softness) => {
  return BBIStencilFlipLEFix_(
    check.image('dst', dst).pointer,
    check.image('incoming', incoming).pointer,
    check.image('outgoing', outgoing).pointer,
    check.image('stencil', stencil).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.real('progress', progress),
    check.real('softness', softness));
};

const BBIStencilAddsigned_ = declare('BBIStencilAddsigned', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'float', 'uint32_t']);
exports.BBIStencilAddsigned = (dst, src, dx, dy, cx, cy, sx, sy, opacity, colour) => {
  return BBIStencilAddsigned_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.real('opacity', opacity),
    check.uint32_t('colour', colour));
};

const BBIBlt_ = declare('BBIBlt', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBlt = (dst, src, dx, dy, cx, cy, sx, sy) => {
  return BBIBlt_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIBltColor_ = declare('BBIBltColor', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'uint32_t', 'uint32_t', 'uint32_t']);
exports.BBIBltColor = (dst, dx, dy, cx, cy, mask, invert_bits, colour) => {
  return BBIBltColor_(
    check.image('dst', dst).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.uint32_t('mask', mask),
    check.uint32_t('invert_bits', invert_bits),
    check.uint32_t('colour', colour));
};

const BBIBltColorBlend_ = declare('BBIBltColorBlend', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'uint32_t', 'float']);
exports.BBIBltColorBlend = (dst, dx, dy, cx, cy, colour, factor) => {
  return BBIBltColorBlend_(
    check.image('dst', dst).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.uint32_t('colour', colour),
    check.real('factor', factor));
};

const BBIBltAlpha_ = declare('BBIBltAlpha', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltAlpha = (dst, src, dx, dy, cx, cy, sx, sy, max_with_dest, min_with_dest, invert, subtract_from_dest) => {
  return BBIBltAlpha_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.int32_t('max_with_dest', max_with_dest),
    check.int32_t('min_with_dest', min_with_dest),
    check.int32_t('invert', invert),
    check.int32_t('subtract_from_dest', subtract_from_dest));
};

const BBIBltAdd_ = declare('BBIBltAdd', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltAdd = (dst, src, dx, dy, cx, cy, sx, sy) => {
  return BBIBltAdd_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIBltMul_ = declare('BBIBltMul', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltMul = (dst, src, dx, dy, cx, cy, sx, sy) => {
  return BBIBltMul_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIBltSub_ = declare('BBIBltSub', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltSub = (dst, src, dx, dy, cx, cy, sx, sy) => {
  return BBIBltSub_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIBltXor_ = declare('BBIBltXor', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltXor = (dst, src, dx, dy, cx, cy, sx, sy) => {
  return BBIBltXor_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIBltXor2_ = declare('BBIBltXor2', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltXor2 = (dst, src, dx, dy, cx, cy, sx, sy) => {
  return BBIBltXor2_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIBltXor3_ = declare('BBIBltXor3', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltXor3 = (dst, src, dx, dy, cx, cy, sx, sy) => {
  return BBIBltXor3_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIBltNot_ = declare('BBIBltNot', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltNot = (dst, src, dx, dy, cx, cy, sx, sy) => {
  return BBIBltNot_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIBltMin_ = declare('BBIBltMin', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltMin = (dst, src, dx, dy, cx, cy, sx, sy) => {
  return BBIBltMin_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIBltMax_ = declare('BBIBltMax', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltMax = (dst, src, dx, dy, cx, cy, sx, sy) => {
  return BBIBltMax_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIBltKeying_ = declare('BBIBltKeying', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltKeying = (dst, src, dx, dy, cx, cy, sx, sy) => {
  return BBIBltKeying_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIBltKeyingFX_ = declare('BBIBltKeyingFX', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltKeyingFX = (dst, src, dx, dy, cx, cy, sx, sy, keyed, level) => {
  return BBIBltKeyingFX_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.int32_t('keyed', keyed),
    check.int32_t('level', level));
};

const BBIBltBlend_ = declare('BBIBltBlend', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltBlend = (dst, src, dx, dy, cx, cy, sx, sy, whole) => {
  return BBIBltBlend_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.int32_t('whole', whole));
};

const BBIBltHalfBlend_ = declare('BBIBltHalfBlend', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltHalfBlend = (dst, src, dx, dy, cx, cy, sx, sy) => {
  return BBIBltHalfBlend_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIBltShiftAlpha_ = declare('BBIBltShiftAlpha', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltShiftAlpha = (dst, src, dx, dy, cx, cy, sx, sy) => {
  return BBIBltShiftAlpha_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIBltShiftBlock_ = declare('BBIBltShiftBlock', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltShiftBlock = (dst, src, dx, dy, cx, cy, sx, sy) => {
  return BBIBltShiftBlock_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIBltTo32from1_ = declare('BBIBltTo32from1', 'int32_t', ['void *', 'void *', 'void *', 'int32_t']);
exports.BBIBltTo32from1 = (image, bits, palette, stride) => {
  const image_ = check.image('image', image);
  stride = check.int32_t('stride', stride);
  return BBIBltTo32from1_(
    image_.pointer,
    check.memory('bits', bits, Math.abs(stride) * (image_.height - 1) + check.ceilDiv(image_.width, 8), Math.min(0, stride * (image_.height - 1))),
    check.memory('palette', palette, 8),
    stride);
};

const BBIBltTo32from8_ = declare('BBIBltTo32from8', 'int32_t', ['void *', 'void *', 'void *', 'int32_t']);
exports.BBIBltTo32from8 = (image, bits, palette, stride) => {
  const image_ = check.image('image', image);
  stride = check.int32_t('stride', stride);
  return BBIBltTo32from8_(
    image_.pointer,
    check.memory('bits', bits, Math.abs(stride) * (image_.height - 1) + image_.width, Math.min(0, stride * (image_.height - 1))),
    check.memory('palette', palette, 1024),
    stride);
};

const BBIBltTo32from24_ = declare('BBIBltTo32from24', 'int32_t', ['void *', 'void *', 'int32_t']);
exports.BBIBltTo32from24 = (image, bits, stride) => {
  const image_ = check.image('image', image);
  stride = check.int32_t('stride', stride);
  return BBIBltTo32from24_(
    image_.pointer,
    check.memory('bits', bits, Math.abs(stride) * (image_.height - 1) + 3 * image_.width, Math.min(0, stride * (image_.height - 1))),
    stride);
};

const BBIBltTo32from32_ = declare('BBIBltTo32from32', 'int32_t', ['void *', 'void *', 'int32_t']);
exports.BBIBltTo32from32 = (image, bits, stride) => {
  const image_ = check.image('image', image);
  stride = check.int32_t('stride', stride);
  return BBIBltTo32from32_(
    image_.pointer,
    check.memory('bits', bits, Math.abs(stride) * (image_.height - 1) + 4 * image_.width, Math.min(0, stride * (image_.height - 1))),
    stride);
};

const BBIBltToBBIGet_ = declare('BBIBltToBBIGet', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t']);
exports.BBIBltToBBIGet = (dst, src, count, format) => {
  count = check.int32_t('count', count);
  format = check.int32_t('format', format);
  return BBIBltToBBIGet_(
    check.memory('dst', dst, 4 * count),
    check.memory('src', src, count * check.bytesOf(format)),
    count,
    format);
};

const BBIBltTo24As888_ = declare('BBIBltTo24As888', 'int32_t', ['void *', 'void *', 'int32_t']);
exports.BBIBltTo24As888 = (dst, src, count) => {
  count = check.int32_t('count', count);
  return BBIBltTo24As888_(check.memory('dst', dst, 3 * count), check.memory('src', src, 4 * count), count);
};

const BBIBltTo16As444_ = declare('BBIBltTo16As444', 'int32_t', ['void *', 'void *', 'int32_t']);
exports.BBIBltTo16As444 = (dst, src, count) => {
  count = check.int32_t('count', count);
  return BBIBltTo16As444_(check.memory('dst', dst, 2 * count), check.memory('src', src, 4 * count), count);
};

const BBIBltTo16As565_ = declare('BBIBltTo16As565', 'int32_t', ['void *', 'void *', 'int32_t']);
exports.BBIBltTo16As565 = (dst, src, count) => {
  count = check.int32_t('count', count);
  return BBIBltTo16As565_(check.memory('dst', dst, 2 * count), check.memory('src', src, 4 * count), count);
};

const BBIBltTo16As555_ = declare('BBIBltTo16As555', 'int32_t', ['void *', 'void *', 'int32_t']);
exports.BBIBltTo16As555 = (dst, src, count) => {
  count = check.int32_t('count', count);
  return BBIBltTo16As555_(check.memory('dst', dst, 2 * count), check.memory('src', src, 4 * count), count);
};

const BBIBltTo16As1555_ = declare('BBIBltTo16As1555', 'int32_t', ['void *', 'void *', 'int32_t']);
exports.BBIBltTo16As1555 = (dst, src, count) => {
  count = check.int32_t('count', count);
  return BBIBltTo16As1555_(check.memory('dst', dst, 2 * count), check.memory('src', src, 4 * count), count);
};

const BBIBltTo8AsGray_ = declare('BBIBltTo8AsGray', 'int32_t', ['void *', 'void *', 'int32_t']);
exports.BBIBltTo8AsGray = (dst, src, count) => {
  count = check.int32_t('count', count);
  return BBIBltTo8AsGray_(check.memory('dst', dst, count), check.memory('src', src, 4 * count), count);
};

const BBIBltTo8AsAlpha_ = declare('BBIBltTo8AsAlpha', 'int32_t', ['void *', 'void *', 'int32_t']);
exports.BBIBltTo8AsAlpha = (dst, src, count) => {
  count = check.int32_t('count', count);
  return BBIBltTo8AsAlpha_(check.memory('dst', dst, count), check.memory('src', src, 4 * count), count);
};

const BBIBltTo1_ = declare('BBIBltTo1', 'int32_t', ['void *', 'void *', 'int32_t']);
exports.BBIBltTo1 = (dst, src, count) => {
  count = check.int32_t('count', count);
  return BBIBltTo1_(
    check.memory('dst', dst, check.ceilDiv(count, 8)),
    check.memory('src', src, 4 * count),
    count);
};

const BBIBltToX_ = declare('BBIBltToX', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'uint32_t', 'float']);
exports.BBIBltToX = (dst, src, count, format, colour, factor) => {
  count = check.int32_t('count', count);
  format = check.int32_t('format', format);
  return BBIBltToX_(
    check.memory('dst', dst, count * check.bytesOf(format)),
    check.memory('src', src, 4 * count),
    count,
    format,
    check.uint32_t('colour', colour),
    check.real('factor', factor));
};

const BBIBltToXF_ = declare('BBIBltToXF', 'int32_t', ['void *', 'void *', 'void *', 'int32_t', 'int32_t', 'float']);
exports.BBIBltToXF = (dst, a, b, count, format, factor) => {
  count = check.int32_t('count', count);
  format = check.int32_t('format', format);
  return BBIBltToXF_(
    check.memory('dst', dst, count * check.bytesOf(format)),
    check.memory('a', a, 4 * count),
    check.memory('b', b, 4 * count),
    count,
    format,
    check.real('factor', factor));
};

const BBIBltToF_ = declare('BBIBltToF', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'uint32_t', 'float', 'float', 'int32_t', 'void *']);
exports.BBIBltToF = (dst, src, count, format, colour, factor, saturation, use_table, table) => {
  count = check.int32_t('count', count);
  format = check.int32_t('format', format);
  return BBIBltToF_(
    check.memory('dst', dst, count * check.bytesOf(format)),
    check.memory('src', src, 4 * count),
    count,
    format,
    check.uint32_t('colour', colour),
    check.real('factor', factor),
    check.real('saturation', saturation),
    check.int32_t('use_table', use_table),
    check.memory('table', table, 768));
};

const BBICompare_ = declare('BBICompare', 'int32_t', ['void *', 'void *', 'int32_t']);
exports.BBICompare = (a, b, mode) => {
  return BBICompare_(check.image('a', a).pointer, check.image('b', b).pointer, check.int32_t('mode', mode));
};

const BBICompareAny_ = declare('BBICompareAny', 'int32_t', ['void *', 'void *', 'uint32_t', 'int32_t']);
exports.BBICompareAny = (a, b, mask, tolerance) => {
  return BBICompareAny_(
    check.image('a', a).pointer,
    check.image('b', b).pointer,
    check.uint32_t('mask', mask),
    check.int32_t('tolerance', tolerance));
};

const BBIColorCount_ = declare('BBIColorCount', 'int32_t', ['void *', 'int32_t']);
exports.BBIColorCount = (image, reserved) => {
  return BBIColorCount_(check.image('image', image).pointer, check.int32_t('reserved', reserved));
};

const BBIColorPalette_ = declare('BBIColorPalette', 'int32_t', ['void *', 'void *', 'int32_t']);
exports.BBIColorPalette = (image, palette, max) => {
  max = check.int32_t('max', max);
  return BBIColorPalette_(
    check.image('image', image).pointer,
    check.memory('palette', palette, 4 * max),
    max);
};

const BBITrim_ = declare('BBITrim', 'int32_t', ['void *', 'int32_t', 'uint32_t', 'uint32_t', 'void *', 'void *', 'void *', 'void *']);
exports.BBITrim = (image, reserved, mask, key, left, top, cx, cy) => {
  return BBITrim_(
    check.image('image', image).pointer,
    check.int32_t('reserved', reserved),
    check.uint32_t('mask', mask),
    check.uint32_t('key', key),
    check.memory('left', left, 4),
    check.memory('top', top, 4),
    check.memory('cx', cx, 4),
    check.memory('cy', cy, 4));
};

const BBIClear_ = declare('BBIClear', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIClear = (image, red, green, blue, alpha) => {
  return BBIClear_(
    check.image('image', image).pointer,
    check.int32_t('red', red),
    check.int32_t('green', green),
    check.int32_t('blue', blue),
    check.int32_t('alpha', alpha));
};

const BBIClearRGB_ = declare('BBIClearRGB', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIClearRGB = (image, red, green, blue) => {
  return BBIClearRGB_(
    check.image('image', image).pointer,
    check.int32_t('red', red),
    check.int32_t('green', green),
    check.int32_t('blue', blue));
};

const BBIClearMask_ = declare('BBIClearMask', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'uint32_t']);
exports.BBIClearMask = (image, red, green, blue, alpha, mask) => {
  return BBIClearMask_(
    check.image('image', image).pointer,
    check.int32_t('red', red),
    check.int32_t('green', green),
    check.int32_t('blue', blue),
    check.int32_t('alpha', alpha),
    check.uint32_t('mask', mask));
};

const BBIMirror_ = declare('BBIMirror', 'int32_t', ['void *']);
exports.BBIMirror = (image) => {
  return BBIMirror_(check.image('image', image).pointer);
};

const BBIVMirror_ = declare('BBIVMirror', 'int32_t', ['void *']);
exports.BBIVMirror = (image) => {
  return BBIVMirror_(check.image('image', image).pointer);
};

const BBIRotation_ = declare('BBIRotation', 'int32_t', ['void *', 'void *', 'int32_t']);
exports.BBIRotation = (dst, src, mode) => {
  return BBIRotation_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('mode', mode));
};

const BBIKeying_ = declare('BBIKeying', 'int32_t', ['void *', 'uint32_t']);
exports.BBIKeying = (image, key) => {
  return BBIKeying_(check.image('image', image).pointer, check.uint32_t('key', key));
};

const BBIKeyingFilter_ = declare('BBIKeyingFilter', 'int32_t', ['void *']);
exports.BBIKeyingFilter = (image) => {
  return BBIKeyingFilter_(check.image('image', image).pointer);
};

const BBIAntiAreas_ = declare('BBIAntiAreas', 'int32_t', ['int32_t', 'int32_t', 'int32_t']);
exports.BBIAntiAreas = (a, b, c) => {
  return BBIAntiAreas_(check.int32_t('a', a), check.int32_t('b', b), check.int32_t('c', c));
};

const BBIPaint_ = declare('BBIPaint', 'int32_t', ['void *', 'int32_t', 'int32_t', 'uint32_t', 'void *', 'void *', 'void *', 'void *']);
exports.BBIPaint = (image, x, y, colour, left, top, right, bottom) => {
  return BBIPaint_(
    check.image('image', image).pointer,
    check.int32_t('x', x),
    check.int32_t('y', y),
    check.uint32_t('colour', colour),
    check.memory('left', left, 4),
    check.memory('top', top, 4),
    check.memory('right', right, 4),
    check.memory('bottom', bottom, 4));
};

const BBIBltTone_ = declare('BBIBltTone', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltTone = (dst, src, dx, dy, cx, cy, sx, sy) => {
  return BBIBltTone_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIBltToneWB_ = declare('BBIBltToneWB', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'float']);
exports.BBIBltToneWB = (dst, src, dx, dy, cx, cy, sx, sy, factor) => {
  return BBIBltToneWB_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.real('factor', factor));
};

const BBIBltTrueBlend_ = declare('BBIBltTrueBlend', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'float']);
exports.BBIBltTrueBlend = (dst, src, dx, dy, cx, cy, sx, sy, opacity) => {
  return BBIBltTrueBlend_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.real('opacity', opacity));
};

const BBIAutoLevelRGB_ = declare('BBIAutoLevelRGB', 'int32_t', ['void *', 'int32_t']);
exports.BBIAutoLevelRGB = (image, threshold) => {
  return BBIAutoLevelRGB_(check.image('image', image).pointer, check.int32_t('threshold', threshold));
};

const BBIAutoLevelRGBRev_ = declare('BBIAutoLevelRGBRev', 'int32_t', ['void *', 'int32_t']);
exports.BBIAutoLevelRGBRev = (image, threshold) => {
  return BBIAutoLevelRGBRev_(check.image('image', image).pointer, check.int32_t('threshold', threshold));
};

const BBIAutoLevelRGBMul_ = declare('BBIAutoLevelRGBMul', 'int32_t', ['void *', 'int32_t']);
exports.BBIAutoLevelRGBMul = (image, threshold) => {
  return BBIAutoLevelRGBMul_(check.image('image', image).pointer, check.int32_t('threshold', threshold));
};

const BBIAutoLevelWB_ = declare('BBIAutoLevelWB', 'int32_t', ['void *', 'int32_t']);
exports.BBIAutoLevelWB = (image, threshold) => {
  return BBIAutoLevelWB_(check.image('image', image).pointer, check.int32_t('threshold', threshold));
};

const BBIExpandBlt_ = declare('BBIExpandBlt', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'float']);
exports.BBIExpandBlt = (dst, src, dx, dy, dw, dh, sx, sy, sw, sh, opacity) => {
  return BBIExpandBlt_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('dw', dw),
    check.int32_t('dh', dh),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.int32_t('sw', sw),
    check.int32_t('sh', sh),
    check.real('opacity', opacity));
};

const BBIExpandBlendBlt_ = declare('BBIExpandBlendBlt', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'float']);
exports.BBIExpandBlendBlt = (dst, src, dx, dy, dw, dh, sx, sy, sw, sh, opacity) => {
  return BBIExpandBlendBlt_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('dw', dw),
    check.int32_t('dh', dh),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.int32_t('sw', sw),
    check.int32_t('sh', sh),
    check.real('opacity', opacity));
};

const BBIExpandColorBlt_ = declare('BBIExpandColorBlt', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'float', 'uint32_t', 'uint32_t', 'uint32_t', 'uint32_t', 'uint32_t', 'uint32_t', 'int32_t']);
exports.BBIExpandColorBlt = (dst, src, dx, dy, dw, dh, sx, sy, sw, sh, opacity, keep_mask, mask, top_left, top_right, bottom_left, bottom_right, use_source_alpha) => {
  return BBIExpandColorBlt_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('dw', dw),
    check.int32_t('dh', dh),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.int32_t('sw', sw),
    check.int32_t('sh', sh),
    check.real('opacity', opacity),
    check.uint32_t('keep_mask', keep_mask),
    check.uint32_t('mask', mask),
    check.uint32_t('top_left', top_left),
    check.uint32_t('top_right', top_right),
    check.uint32_t('bottom_left', bottom_left),
    check.uint32_t('bottom_right', bottom_right),
    check.int32_t('use_source_alpha', use_source_alpha));
};

const BBIExpandChooseBlt_ = declare('BBIExpandChooseBlt', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'float', 'float', 'uint32_t', 'uint32_t', 'uint32_t', 'uint32_t', 'uint32_t', 'uint32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIExpandChooseBlt = (dst, src, dx, dy, dw, dh, sx, sy, sw, sh, opacity, saturation, level_low, level_high, keep_mask, mask, colour, invert_bits, use_source_alpha, add_colour, add_alpha, source_is_base) => {
  return BBIExpandChooseBlt_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('dw', dw),
    check.int32_t('dh', dh),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.int32_t('sw', sw),
    check.int32_t('sh', sh),
    check.real('opacity', opacity),
    check.real('saturation', saturation),
    check.uint32_t('level_low', level_low),
    check.uint32_t('level_high', level_high),
    check.uint32_t('keep_mask', keep_mask),
    check.uint32_t('mask', mask),
    check.uint32_t('colour', colour),
    check.uint32_t('invert_bits', invert_bits),
    check.int32_t('use_source_alpha', use_source_alpha),
    check.int32_t('add_colour', add_colour),
    check.int32_t('add_alpha', add_alpha),
    check.int32_t('source_is_base', source_is_base));
};

const BBILinearBlt_ = declare('BBILinearBlt', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBILinearBlt = (dst, src, dx, dy, dw, dh, sx, sy, sw, sh) => {
  return BBILinearBlt_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('dw', dw),
    check.int32_t('dh', dh),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.int32_t('sw', sw),
    check.int32_t('sh', sh));
};

const BBILinearRender_ = declare('BBILinearRender', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'void *', 'int32_t', 'int32_t', 'uint32_t']);
exports.BBILinearRender = (dst, src, dx, dy, dw, dh, sx, sy, sw, sh, table, mode, smooth, tint) => {
  return BBILinearRender_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('dw', dw),
    check.int32_t('dh', dh),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.int32_t('sw', sw),
    check.int32_t('sh', sh),
    check.memory('table', table, 1024),
    check.int32_t('mode', mode),
    check.int32_t('smooth', smooth),
    check.uint32_t('tint', tint));
};

const BBIAlphaTableCreate_ = declare('BBIAlphaTableCreate', 'void', ['void *', 'float', 'int32_t']);
exports.BBIAlphaTableCreate = (table, opacity, by_alpha) => {
  return BBIAlphaTableCreate_(
    check.memory('table', table, 1024),
    check.real('opacity', opacity),
    check.int32_t('by_alpha', by_alpha));
};

const BBILinear_ = declare('BBILinear', 'int32_t', ['void *', 'void *']);
exports.BBILinear = (dst, src) => {
  return BBILinear_(check.image('dst', dst).pointer, check.image('src', src).pointer);
};

const BBILinearBltTest_ = declare('BBILinearBltTest', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBILinearBltTest = (dst, src, dx, dy, dw, dh, sx, sy, sw, sh) => {
  return BBILinearBltTest_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('dw', dw),
    check.int32_t('dh', dh),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.int32_t('sw', sw),
    check.int32_t('sh', sh));
};

const BBIFlip_ = declare('BBIFlip', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'float']);
exports.BBIFlip = (dst, src, dx, dy, cx, cy, sx, sy, opacity) => {
  return BBIFlip_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.real('opacity', opacity));
};

const BBIFlipBlend_ = declare('BBIFlipBlend', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'float']);
exports.BBIFlipBlend = (dst, src, dx, dy, cx, cy, sx, sy, opacity) => {
  return BBIFlipBlend_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.real('opacity', opacity));
};

const BBIDepth_ = declare('BBIDepth', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIDepth = (dst, src, dx, dy, cx, cy, sx, sy) => {
  return BBIDepth_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIDepthMask_ = declare('BBIDepthMask', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'uint32_t']);
exports.BBIDepthMask = (dst, src, dx, dy, cx, cy, sx, sy, keep_mask) => {
  return BBIDepthMask_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.uint32_t('keep_mask', keep_mask));
};

const BBIFlipLineX_ = declare('BBIFlipLineX', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'uint32_t']);
exports.BBIFlipLineX = (image, x, y, length, colour) => {
  return BBIFlipLineX_(
    check.image('image', image).pointer,
    check.int32_t('x', x),
    check.int32_t('y', y),
    check.int32_t('length', length),
    check.uint32_t('colour', colour));
};

const BBIFlipLineY_ = declare('BBIFlipLineY', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'uint32_t']);
exports.BBIFlipLineY = (image, x, y, length, colour) => {
  return BBIFlipLineY_(
    check.image('image', image).pointer,
    check.int32_t('x', x),
    check.int32_t('y', y),
    check.int32_t('length', length),
    check.uint32_t('colour', colour));
};

const BBIBltUBlur_ = declare('BBIBltUBlur', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltUBlur = (dst, src, dx, dy, cx, cy, sx, sy, radius) => {
  return BBIBltUBlur_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.int32_t('radius', radius));
};

const BBIBltVBlur_ = declare('BBIBltVBlur', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltVBlur = (dst, src, dx, dy, cx, cy, sx, sy, radius) => {
  return BBIBltVBlur_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.int32_t('radius', radius));
};

const BBIBltUBlurLoop_ = declare('BBIBltUBlurLoop', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltUBlurLoop = (dst, src, dx, dy, cx, cy, sx, sy, radius) => {
  return BBIBltUBlurLoop_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.int32_t('radius', radius));
};

const BBIBltVBlurLoop_ = declare('BBIBltVBlurLoop', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltVBlurLoop = (dst, src, dx, dy, cx, cy, sx, sy, radius) => {
  return BBIBltVBlurLoop_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.int32_t('radius', radius));
};

const BBIBltUScale_ = declare('BBIBltUScale', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltUScale = (dst, src, dx, dy, cx, cy, sx, sy, num, den) => {
  return BBIBltUScale_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.int32_t('num', num),
    check.int32_t('den', den));
};

const BBIBltVScale_ = declare('BBIBltVScale', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltVScale = (dst, src, dx, dy, cx, cy, sx, sy, num, den) => {
  return BBIBltVScale_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy),
    check.int32_t('num', num),
    check.int32_t('den', den));
};

const BBIBltHalfSize_ = declare('BBIBltHalfSize', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIBltHalfSize = (dst, src, dx, dy, cx, cy, sx, sy) => {
  return BBIBltHalfSize_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('dx', dx),
    check.int32_t('dy', dy),
    check.int32_t('cx', cx),
    check.int32_t('cy', cy),
    check.int32_t('sx', sx),
    check.int32_t('sy', sy));
};

const BBIColorCutDown1555_ = declare('BBIColorCutDown1555', 'int32_t', ['void *']);
exports.BBIColorCutDown1555 = (image) => {
  return BBIColorCutDown1555_(check.image('image', image).pointer);
};

const BBIColorCutDown4444_ = declare('BBIColorCutDown4444', 'int32_t', ['void *']);
exports.BBIColorCutDown4444 = (image) => {
  return BBIColorCutDown4444_(check.image('image', image).pointer);
};

const BBIColorCutDown1111_ = declare('BBIColorCutDown1111', 'int32_t', ['void *']);
exports.BBIColorCutDown1111 = (image) => {
  return BBIColorCutDown1111_(check.image('image', image).pointer);
};

const BBIChooseCA_ = declare('BBIChooseCA', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t']);
exports.BBIChooseCA = (dst, src, colour_from, alpha_from) => {
  return BBIChooseCA_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('colour_from', colour_from),
    check.int32_t('alpha_from', alpha_from));
};

const BBIChooseCATR_ = declare('BBIChooseCATR', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t']);
exports.BBIChooseCATR = (dst, src, colour_from, alpha_from) => {
  return BBIChooseCATR_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('colour_from', colour_from),
    check.int32_t('alpha_from', alpha_from));
};

const BBIChooseCATS_ = declare('BBIChooseCATS', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'float', 'float', 'float']);
exports.BBIChooseCATS = (dst, src, colour_from, alpha_from, red_weight, green_weight, blue_weight) => {
  return BBIChooseCATS_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('colour_from', colour_from),
    check.int32_t('alpha_from', alpha_from),
    check.real('red_weight', red_weight),
    check.real('green_weight', green_weight),
    check.real('blue_weight', blue_weight));
};

const BBIChooseRGBA_ = declare('BBIChooseRGBA', 'int32_t', ['void *', 'void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.BBIChooseRGBA = (dst, src, red_from, green_from, blue_from, alpha_from) => {
  return BBIChooseRGBA_(
    check.image('dst', dst).pointer,
    check.image('src', src).pointer,
    check.int32_t('red_from', red_from),
    check.int32_t('green_from', green_from),
    check.int32_t('blue_from', blue_from),
    check.int32_t('alpha_from', alpha_from));
};

const BBIPaintChoose_ = declare('BBIPaintChoose', 'int32_t', ['void *', 'uint32_t', 'uint32_t', 'uint32_t', 'uint32_t', 'uint32_t']);
exports.BBIPaintChoose = (image, op, colour, key, extra, outer) => {
  return BBIPaintChoose_(
    check.image('image', image).pointer,
    check.uint32_t('op', op),
    check.uint32_t('colour', colour),
    check.uint32_t('key', key),
    check.uint32_t('extra', extra),
    check.uint32_t('outer', outer));
};

const GetWave_ = declare('GetWave', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'void *', 'void *']);
exports.GetWave = (data, index, bits, channels, count, left, right) => {
  bits = check.int32_t('bits', bits);
  channels = check.int32_t('channels', channels);
  count = check.int32_t('count', count);
  return GetWave_(
    check.memory('data', data, Math.max(count, 0) * (2 * Math.min(Math.abs(bits - 8), 1) + Math.min(Math.abs(bits - 16), 1)) * (2 - Math.min(Math.abs(channels - 2), 1))),
    check.int32_t('index', index),
    bits,
    channels,
    count,
    check.memory('left', left, 4),
    check.memory('right', right, 4));
};

const LetWave_ = declare('LetWave', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.LetWave = (data, index, bits, channels, count, left, right) => {
  bits = check.int32_t('bits', bits);
  channels = check.int32_t('channels', channels);
  count = check.int32_t('count', count);
  return LetWave_(
    check.memory('data', data, Math.max(count, 0) * (2 * Math.min(Math.abs(bits - 8), 1) + Math.min(Math.abs(bits - 16), 1)) * (2 - Math.min(Math.abs(channels - 2), 1))),
    check.int32_t('index', index),
    bits,
    channels,
    count,
    check.int32_t('left', left),
    check.int32_t('right', right));
};

const GetWave24_ = declare('GetWave24', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'void *', 'void *']);
exports.GetWave24 = (data, index, bits, channels, count, left, right) => {
  bits = check.int32_t('bits', bits);
  channels = check.int32_t('channels', channels);
  count = check.int32_t('count', count);
  return GetWave24_(
    check.memory('data', data, Math.max(count, 0) * (2 * Math.min(Math.abs(bits - 8), 1) + Math.min(Math.abs(bits - 16), 1)) * (2 - Math.min(Math.abs(channels - 2), 1))),
    check.int32_t('index', index),
    bits,
    channels,
    count,
    check.memory('left', left, 4),
    check.memory('right', right, 4));
};

const LetWave24_ = declare('LetWave24', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.LetWave24 = (data, index, bits, channels, count, left, right) => {
  bits = check.int32_t('bits', bits);
  channels = check.int32_t('channels', channels);
  count = check.int32_t('count', count);
  return LetWave24_(
    check.memory('data', data, Math.max(count, 0) * (2 * Math.min(Math.abs(bits - 8), 1) + Math.min(Math.abs(bits - 16), 1)) * (2 - Math.min(Math.abs(channels - 2), 1))),
    check.int32_t('index', index),
    bits,
    channels,
    count,
    check.int32_t('left', left),
    check.int32_t('right', right));
};

const GetWave64_ = declare('GetWave64', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'void *', 'void *']);
exports.GetWave64 = (data, index, bits, channels, count, left, right) => {
  bits = check.int32_t('bits', bits);
  channels = check.int32_t('channels', channels);
  count = check.int32_t('count', count);
  return GetWave64_(
    check.memory('data', data, Math.max(count, 0) * Math.min(Math.trunc(bits / 8), 8) * (2 - Math.min(Math.abs(channels - 2), 1))),
    check.int32_t('index', index),
    bits,
    channels,
    count,
    check.memory('left', left, 8),
    check.memory('right', right, 8));
};

const LetWave64_ = declare('LetWave64', 'int32_t', ['void *', 'int32_t', 'int32_t', 'int32_t', 'int32_t', 'double', 'double']);
exports.LetWave64 = (data, index, bits, channels, count, left, right) => {
  bits = check.int32_t('bits', bits);
  channels = check.int32_t('channels', channels);
  count = check.int32_t('count', count);
  return LetWave64_(
    check.memory('data', data, Math.max(count, 0) * Math.min(Math.trunc(bits / 8), 8) * (2 - Math.min(Math.abs(channels - 2), 1))),
    check.int32_t('index', index),
    bits,
    channels,
    count,
    check.real('left', left),
    check.real('right', right));
};

const waveFormatEnc_ = declare('waveFormatEnc', 'int32_t', ['int32_t', 'int32_t', 'int32_t']);
exports.waveFormatEnc = (bits, channels, rate) => {
  return waveFormatEnc_(
    check.int32_t('bits', bits),
    check.int32_t('channels', channels),
    check.int32_t('rate', rate));
};

const waveFormat_ = declare('waveFormat', 'int32_t', ['WaveBuffer *', 'WaveBuffer *']);
exports.waveFormat = (dst, src) => {
  return waveFormat_(check.sound('dst', dst), check.sound('src', src));
};

const waveBlt_ = declare('waveBlt', 'int32_t', ['WaveBuffer *', 'WaveBuffer *', 'int32_t', 'int32_t', 'int32_t', 'float']);
exports.waveBlt = (dst, src, dst_start, src_start, count, gain) => {
  return waveBlt_(
    check.sound('dst', dst),
    check.sound('src', src),
    check.int32_t('dst_start', dst_start),
    check.int32_t('src_start', src_start),
    check.int32_t('count', count),
    check.real('gain', gain));
};

const waveBltBlur_ = declare('waveBltBlur', 'int32_t', ['WaveBuffer *', 'WaveBuffer *', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.waveBltBlur = (dst, src, dst_start, src_start, count, radius) => {
  return waveBltBlur_(
    check.sound('dst', dst),
    check.sound('src', src),
    check.int32_t('dst_start', dst_start),
    check.int32_t('src_start', src_start),
    check.int32_t('count', count),
    check.int32_t('radius', radius));
};

const waveBltGluder_ = declare('waveBltGluder', 'int32_t', ['WaveBuffer *', 'WaveBuffer *', 'int32_t', 'int32_t', 'int32_t', 'int32_t']);
exports.waveBltGluder = (dst, src, dst_start, src_start, count, offset) => {
  return waveBltGluder_(
    check.sound('dst', dst),
    check.sound('src', src),
    check.int32_t('dst_start', dst_start),
    check.int32_t('src_start', src_start),
    check.int32_t('count', count),
    check.int32_t('offset', offset));
};

const waveBltAddNoise_ = declare('waveBltAddNoise', 'int32_t', ['WaveBuffer *', 'WaveBuffer *', 'int32_t', 'int32_t', 'int32_t', 'float']);
exports.waveBltAddNoise = (dst, src, dst_start, src_start, count, amount) => {
  return waveBltAddNoise_(
    check.sound('dst', dst),
    check.sound('src', src),
    check.int32_t('dst_start', dst_start),
    check.int32_t('src_start', src_start),
    check.int32_t('count', count),
    check.real('amount', amount));
};

const waveBltSin_ = declare('waveBltSin', 'int32_t', ['WaveBuffer *', 'WaveBuffer *', 'int32_t', 'int32_t', 'int32_t', 'float', 'float', 'float', 'float']);
exports.waveBltSin = (dst, src, dst_start, src_start, count, amplitude, frequency, depth, rate) => {
  return waveBltSin_(
    check.sound('dst', dst),
    check.sound('src', src),
    check.int32_t('dst_start', dst_start),
    check.int32_t('src_start', src_start),
    check.int32_t('count', count),
    check.real('amplitude', amplitude),
    check.real('frequency', frequency),
    check.real('depth', depth),
    check.real('rate', rate));
};

const waveBltAdd_ = declare('waveBltAdd', 'int32_t', ['WaveBuffer *', 'WaveBuffer *', 'int32_t', 'int32_t', 'int32_t', 'float']);
exports.waveBltAdd = (dst, src, dst_start, src_start, count, gain) => {
  return waveBltAdd_(
    check.sound('dst', dst),
    check.sound('src', src),
    check.int32_t('dst_start', dst_start),
    check.int32_t('src_start', src_start),
    check.int32_t('count', count),
    check.real('gain', gain));
};

const waveBltSub_ = declare('waveBltSub', 'int32_t', ['WaveBuffer *', 'WaveBuffer *', 'int32_t', 'int32_t', 'int32_t', 'float']);
exports.waveBltSub = (dst, src, dst_start, src_start, count, gain) => {
  return waveBltSub_(
    check.sound('dst', dst),
    check.sound('src', src),
    check.int32_t('dst_start', dst_start),
    check.int32_t('src_start', src_start),
    check.int32_t('count', count),
    check.real('gain', gain));
};

const waveBltMul_ = declare('waveBltMul', 'int32_t', ['WaveBuffer *', 'WaveBuffer *', 'int32_t', 'int32_t', 'int32_t', 'float']);
exports.waveBltMul = (dst, src, dst_start, src_start, count, gain) => {
  return waveBltMul_(
    check.sound('dst', dst),
    check.sound('src', src),
    check.int32_t('dst_start', dst_start),
    check.int32_t('src_start', src_start),
    check.int32_t('count', count),
    check.real('gain', gain));
};

const waveBlt64_ = declare('waveBlt64', 'int32_t', ['WaveBuffer *', 'WaveBuffer *', 'int32_t', 'int32_t', 'int32_t']);
exports.waveBlt64 = (dst, src, dst_start, src_start, count) => {
  return waveBlt64_(
    check.sound('dst', dst),
    check.sound('src', src),
    check.int32_t('dst_start', dst_start),
    check.int32_t('src_start', src_start),
    check.int32_t('count', count));
};

const waveNormal_ = declare('waveNormal', 'int32_t', ['WaveBuffer *', 'WaveBuffer *', 'int32_t', 'int32_t', 'int32_t', 'float']);
exports.waveNormal = (dst, src, dst_start, src_start, count, target) => {
  return waveNormal_(
    check.sound('dst', dst),
    check.sound('src', src),
    check.int32_t('dst_start', dst_start),
    check.int32_t('src_start', src_start),
    check.int32_t('count', count),
    check.real('target', target));
};

const waveClear64_ = declare('waveClear64', 'int32_t', ['WaveBuffer *', 'int32_t', 'int32_t']);
exports.waveClear64 = (dst, start, count) => {
  return waveClear64_(check.sound('dst', dst), check.int32_t('start', start), check.int32_t('count', count));
};

const waveExpand_ = declare('waveExpand', 'int32_t', ['WaveBuffer *', 'WaveBuffer *', 'float']);
exports.waveExpand = (dst, src, ratio) => {
  return waveExpand_(check.sound('dst', dst), check.sound('src', src), check.real('ratio', ratio));
};

const waveEffectMaximizer24_ = declare('waveEffectMaximizer24', 'int32_t', ['WaveBuffer *', 'void *', 'void *', 'int32_t', 'double', 'void *', 'void *']);
exports.waveEffectMaximizer24 = (buffer, look_position, write_position, count, growth, left_gain, right_gain) => {
  return waveEffectMaximizer24_(
    check.sound('buffer', buffer),
    check.memory('look_position', look_position, 4),
    check.memory('write_position', write_position, 4),
    check.int32_t('count', count),
    check.real('growth', growth),
    check.memory('left_gain', left_gain, 8),
    check.memory('right_gain', right_gain, 8));
};

const waveEffectMaximizer64_ = declare('waveEffectMaximizer64', 'int32_t', ['WaveBuffer *', 'WaveBuffer *', 'void *', 'void *', 'int32_t', 'double', 'void *', 'void *']);
exports.waveEffectMaximizer64 = (dst, src, look_position, write_position, count, step, left_state, right_state) => {
  return waveEffectMaximizer64_(
    check.sound('dst', dst),
    check.sound('src', src),
    check.memory('look_position', look_position, 4),
    check.memory('write_position', write_position, 4),
    check.int32_t('count', count),
    check.real('step', step),
    check.memory('left_state', left_state, 8),
    check.memory('right_state', right_state, 8));
};

const waveEffectReverbA1_ = declare('waveEffectReverbA1', 'int32_t', ['WaveBuffer *', 'void *', 'WaveBuffer *', 'void *', 'int32_t', 'double', 'int32_t', 'int32_t', 'int32_t', 'void *']);
exports.waveEffectReverbA1 = (buffer, frame_position, ring, ring_position, count, level, predelay, spread, taps, tap_table) => {
  return waveEffectReverbA1_(
    check.sound('buffer', buffer),
    check.memory('frame_position', frame_position, 4),
    check.sound('ring', ring, 8388608),
    check.memory('ring_position', ring_position, 4),
    check.int32_t('count', count),
    check.real('level', level),
    check.int32_t('predelay', predelay),
    check.int32_t('spread', spread),
    check.int32_t('taps', taps),
    check.memory('tap_table', tap_table, 240000));
};

const wavefft_ = declare('wavefft', 'int32_t', ['WaveBuffer *', 'int32_t', 'int32_t', 'void *', 'void *']);
exports.wavefft = (buffer, start, n, re, im) => {
  n = check.int32_t('n', n);
  return wavefft_(
    check.sound('buffer', buffer),
    check.int32_t('start', start),
    n,
    check.memory('re', re, 8 * n),
    check.memory('im', im, 8 * n));
};

const wavefft2_ = declare('wavefft2', 'int32_t', ['WaveBuffer *', 'int32_t', 'int32_t', 'void *', 'void *']);
exports.wavefft2 = (buffer, start, n, re, im) => {
  n = check.int32_t('n', n);
  return wavefft2_(
    check.sound('buffer', buffer),
    check.int32_t('start', start),
    n,
    check.memory('re', re, 8 * n),
    check.memory('im', im, 8 * n));
};

exports.codecs = {
  i: { encoder: exports.iEncoder, decoder: exports.iDecoderSafe },
  io: { encoder: exports.ioEncoder, decoder: exports.ioDecoderSafe },
  ib18: { encoder: exports.ib18Encoder, decoder: exports.ib18DecoderSafe },
  ib18_ex: { encoder: exports.ib18EncoderEx, decoder: exports.ib18DecoderExSafe },
  iabr: { encoder: exports.iabrEncoder, decoder: exports.iabrDecoderSafe },
  inabe: { encoder: exports.inabeEncoder, decoder: exports.inabeDecoderSafe },
  imist: { encoder: exports.imistEncoder, decoder: exports.imistDecoderSafe },
  inda: { encoder: exports.indaEncoder, decoder: exports.indaDecoderSafe },
  ica: { encoder: exports.icaEncoder, decoder: exports.icaDecoderSafe },
  c2f: { encoder: exports.c2fEncoder, decoder: exports.c2fDecoder },
};
