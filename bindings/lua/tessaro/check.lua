-- Finds the library, and what every argument goes through on its way to it: no call reads or writes outside the memory that
-- it is given.
local ffi = require("ffi")

local check = {}
local bytes_at = ffi.typeof("uint8_t*")

-- Where the environment says, or where the system looks.
function check.load(declarations)
  local stdcall = ffi.os == "Windows" and ffi.arch == "x86"  -- there the library removes its arguments itself
  declarations = declarations:gsub("CDECL", stdcall and "__cdecl" or ""):gsub("CALL", stdcall and "__stdcall" or "")
  ffi.cdef(declarations)
  return ffi.load(os.getenv("TESSARO_LIBRARY") or (ffi.os == "Windows" and "tessaro" or "libtessaro.so.0"))
end

local function whole(name, value, low, high)
  if type(value) ~= "number" or value % 1 ~= 0 then error(name .. " must be a whole number, not " .. tostring(value), 4) end
  if value < low or value > high then error(("%s must be %.0f..%.0f, not %.0f"):format(name, low, high, value), 4) end
  return value
end

-- Words without a sign, as colours are, may be given for any 32 bits.
function check.int32_t(name, value)
  value = whole(name, value, -0x80000000, 0xFFFFFFFF)
  return value > 0x7FFFFFFF and value - 0x100000000 or value
end

function check.uint32_t(name, value)
  value = whole(name, value, -0x80000000, 0xFFFFFFFF)
  return value < 0 and value + 0x100000000 or value
end

function check.intptr_t(name, value)
  return type(value) == "cdata" and ffi.cast("intptr_t", value) or whole(name, value, -2 ^ 53, 2 ^ 53)
end

function check.real(name, value)
  if type(value) ~= "number" then error(name .. " must be a number, not " .. type(value), 3) end
  return value
end

function check.within(name, value, low, high)
  return whole(name, value, low or -math.huge, high or math.huge)
end

function check.div(a, b)
  local quotient = a / b
  return quotient < 0 and math.ceil(quotient) or math.floor(quotient)
end

function check.ceil_div(a, b) return math.ceil(a / b) end

local sizes = { [8888] = 4, [888] = 3, [565] = 2, [555] = 2, [1555] = 2, [4444] = 2 }
function check.bytes_of(format) return sizes[format] or 0 end

-- Arrays know their size; pointers do not.
local arrays = {}
local function array(value)
  local id = tonumber(ffi.typeof(value))
  if arrays[id] == nil then arrays[id] = tostring(ffi.typeof(value)):find("%]>$") ~= nil end
  return arrays[id]
end

-- The first byte and the number of bytes of a string or of an array.
local function memory_of(name, value, written)
  if type(value) == "string" then
    if written then error(name .. " is written to, but strings cannot be", 4) end
    return ffi.cast(bytes_at, ffi.cast("const char*", value)), #value
  end
  if type(value) ~= "cdata" or not array(value) then
    error(name .. " must be an array of the ffi" .. (written and "" or " or a string") .. ", not " .. tostring(value), 4)
  end
  return ffi.cast(bytes_at, value), ffi.sizeof(value)
end

function check.size(name, value)
  local _, given = memory_of(name, value, false)
  return given
end

-- A pointer into memory of at least `size` bytes, which begins at `begin` seen from the pointer.
function check.memory(name, value, size, begin, written)
  local data, given = memory_of(name, value, written)
  if given < size then error(("%s: %.0f bytes are needed, %d given"):format(name, size, given), 3) end
  return size > 0 and data - begin or data
end

-- Text that ends with a zero: a short one gets it here.
function check.text(name, value, size)
  local data, given = memory_of(name, value, false)
  if given >= size then return data end
  local ended = ffi.new("uint8_t[?]", size)
  ffi.copy(ended, data, given)
  return ended
end

-- Memory from whose start words are counted.
function check.word(name, value, index, width, written)
  local data, given = memory_of(name, value, written)
  if index < 0 or (index + 1) * width > given then
    error(("%s: word %d lies outside of %d bytes"):format(name, index, given), 3)
  end
  return data
end

local words_at = ffi.typeof("int16_t*")
local function half(data, at) return ffi.cast(words_at, data + at)[0] end

-- The record of an image, or at the start of memory: its address, width, height, and pitch and place of its first row. It
-- is looked at with each call, since it lies in the host's memory.
function check.image(name, value, written)
  local at = type(value) == "table" and value.offset or 0
  local data, total = memory_of(name, type(value) == "table" and value.memory or value, written)
  local function inside(what, start, size)
    if start < 0 or start + size > total then
      error(("%s: the image record lies: %s would be bytes %d..%d of a memory of %d bytes"):format(
        name, what, start, start + size - 1, total), 4)
    end
  end
  inside("the record", at, 4)
  local dims, first = at + half(data, at), at + half(data, at + 2)
  inside("the dimensions", dims, 6)
  local width, height, pitch = half(data, dims), half(data, dims + 2), half(data, dims + 4)
  if width > 0 and height > 0 then
    local low, size = first + math.min(0, pitch * (height - 1)), math.abs(pitch) * (height - 1) + 4 * width
    inside("the pixels", low, size)
    if (at < low + size and at + 4 > low) or (dims < low + size and dims + 6 > low) then
      error(name .. ": the image record lies: its pixels would cover it", 3)
    end
  end
  return data + at, width, height, pitch, data + first
end

-- A wave buffer whose samples are there.
function check.sound(name, value, least)
  local format, count = check.int32_t(name .. ".format", value.format), check.int32_t(name .. ".count", value.count)
  local data, given = memory_of(name .. ".data", value.data, true)
  local tag = format % 256
  local bits, channels, size = tag - tag % 8, tag % 8, 0
  if (bits == 8 or bits == 16 or bits == 24 or bits == 64) and (channels == 1 or channels == 2) then
    size = math.max(count, 0) * bits / 8 * channels
  end
  size = math.max(size, least)
  if given < size then error(("%s: %.0f bytes of samples are needed, %d given"):format(name, size, given), 3) end
  return ffi.new("WaveBuffer", format, count, data)
end

-- A function that the library calls: one of C's, or one of Lua's where it is called in Lua's own thread.
function check.callback(name, value, kind)
  if type(value) == "cdata" then return ffi.cast(kind, value), nil end
  if kind == "TessaroWorker" then error(name .. ": another thread calls it, which Lua cannot bear: pass a function of C", 3) end
  local made = ffi.cast(kind, value)
  return made, made
end

-- The one that windows call stays.
function check.release(made, kind)
  if made and kind ~= "TessaroHook" then made:free() end
end

return check
