-- Raster images, byte-stream codecs and waveforms: all functions of the library by name, named constants, and images and
-- streams. Memory is an array of the ffi, as ffi.new("uint8_t[?]", 64), or a string where it is only read.
local ffi = require("ffi")
local check = require("tessaro.check")
local functions = require("tessaro.functions")

---@alias tessaro.Buffer ffi.cdata*|string
---@alias tessaro.Sound { format: integer, count: integer, data: ffi.cdata* }

local tessaro = setmetatable({}, { __index = functions })
for name, constants in pairs(require("tessaro.constants")) do tessaro[name] = constants end

---An image record with its pixels, in one block of memory.
---@class tessaro.Image
---@field memory ffi.cdata*
---@field offset integer where the record lies
local Image = {}
Image.__index = Image

---A transparent black image.
function tessaro.image(width, height)
  if not (width >= 1 and width <= 8191 and height >= 1 and height <= 32767) then
    error(("an image is 1..8191 pixels wide and 1..32767 high, not %s x %s: cut a larger one in parts"):format(width, height), 2)
  end
  local memory = ffi.new("uint8_t[?]", 16 + 4 * width * height)
  ffi.copy(memory, ffi.new("int16_t[5]", 4, 16, width, height, 4 * width), 10)
  return setmetatable({ memory = memory, offset = 0 }, Image)
end

---The image whose record lies at an offset of an array.
function tessaro.image_at(memory, offset)
  check.image("memory", { memory = memory, offset = offset }, true)
  return setmetatable({ memory = memory, offset = offset }, Image)
end

---Width and height.
function Image:size()
  local _, width, height = check.image("image", self, false)
  return width, height
end

local function place(image, x, y)
  local _, width, height, pitch, first = check.image("image", image, true)
  if not (x >= 0 and x < width and y >= 0 and y < height and x % 1 == 0 and y % 1 == 0) then
    error(("the image of %d x %d pixels has none at %s, %s"):format(width, height, x, y), 3)
  end
  return ffi.cast("uint32_t*", first + pitch * y + 4 * x)
end

---The pixel 0xAARRGGBB of a column and a row.
function Image:get(x, y) return place(self, x, y)[0] end
function Image:set(x, y, colour) place(self, x, y)[0] = check.uint32_t("colour", colour) end

---The bytes blue, green, red and alpha of each pixel, row after row from the top.
---@return string
function Image:pixels()
  local _, width, height, pitch, first = check.image("image", self, false)
  local rows = {}
  for y = 0, height - 1 do rows[y + 1] = ffi.string(first + pitch * y, 4 * width) end
  return table.concat(rows)
end

local function coder(codec)
  return functions.codecs[codec] or error(('there is no codec "%s"'):format(codec), 3)
end

---Compresses a string by one of the stream formats, as "inabe" or "ib18_ex"; nil where it does not get smaller.
function tessaro.encode(codec, data)
  local room, written = ffi.new("uint8_t[?]", #data + math.ceil(#data / 32) + 64), ffi.new("uint32_t[1]")
  if coder(codec).encoder(data, room, #data, written) ~= 0 then return nil end
  return ffi.string(room, written[0])
end

---The `length` bytes that a stream was made from; an error where it is damaged.
function tessaro.decode(codec, stream, length)
  local made = ffi.new("uint8_t[?]", length)
  if coder(codec).decoder(stream, made, #stream, length) ~= 0 then error(("the stream of %s is damaged"):format(codec), 2) end
  return ffi.string(made, length)
end

return tessaro
