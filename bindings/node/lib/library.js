// Finds the shared library, and makes functions of its names.
'use strict';

const fs = require('fs');
const path = require('path');
const koffi = require('koffi');

const file = process.platform === 'win32' ? 'tessaro.dll' : 'libtessaro.so';
const beside = path.join(__dirname, `${process.platform}-${process.arch}`, file);
// Beside this file, as the package has it for each system; where the environment says, where the system looks.
const place = fs.existsSync(beside) ? beside
  : process.env.TESSARO_LIBRARY || (process.platform === 'win32' ? file : `${file}.0`);

let library;
try {
  library = koffi.load(place);
} catch (error) {
  throw new Error(`tessaro: the shared library cannot be loaded from ${place}; set TESSARO_LIBRARY to its path (${error.message})`);
}

koffi.struct('WaveBuffer', { format: 'int32_t', count: 'int32_t', data: 'void *' });

// 32-bit Windows: the library removes its arguments itself. Elsewhere there is one convention, and the word means nothing.
exports.declare = (name, result, types) => library.func('__stdcall', name, result, types);

exports.prototype = (name, convention, result, types) =>
  koffi.proto(convention === 'cdecl' ? '__cdecl' : '__stdcall', name, result, types);
