import { Codec } from './lib/functions';

export * from './lib/functions';
export * from './lib/constants';

/** Memory of the host's; its bytes are what counts, whatever its items are. */
export type Memory = ArrayBufferView;

/** An image, or memory that begins with an image record. */
export type ImageLike = Image | Memory;

/** A wave buffer: format code (see `waveFormatEnc`), number of frames, and the samples. */
export interface Sound {
  format: number;
  count: number;
  data: Memory;
}

/** An image record with its pixels, in one block of memory. */
export class Image {
  /** A transparent black image. */
  constructor(width: number, height: number);
  /** The image whose record lies at an offset of the host's own memory; throws where the record is wrong about it. */
  static at(memory: Memory, offset?: number): Image;
  readonly memory: Memory;
  readonly offset: number;
  readonly width: number;
  readonly height: number;
  /** The bytes blue, green, red and alpha of each pixel of a row; changes show in the image. */
  row(y: number): Uint8Array;
}

/** Compresses bytes by one of the stream formats, as "inabe" or "ib18_ex"; null where they do not get smaller. */
export function encode(codec: Codec, data: Memory): Uint8Array | null;
/** The `length` bytes that a stream was made from; throws where it is damaged. */
export function decode(codec: Codec, stream: Memory, length: number): Uint8Array;
