-- Paints an evening by the sea and saves it as a bitmap file: luajit evening.lua [FILE]
local ffi = require("ffi")
local t = require("tessaro")

local width, height, horizon = 480, 300, 180
local picture, light, sea = t.image(width, height), t.image(width, height), t.image(width, height)

-- The sky: a colour for each corner.
t.BBIDrawBox(picture, 0, 0, width, horizon, 0, 0xFF1A2A52, 0xFF2A3266, 0xFFF08A4B, 0xFFF8B45F)

-- The sun: rings from black to the inner colour, added to the sky.
local rings = t.image(64, 1)
for i = 0, 63 do
  local warm = math.floor(255 * (i / 63) ^ 3 + 0.5)
  rings:set(i, 0, 0xFF000000 + warm * 0x10000 + math.floor(warm * 3 / 4) * 0x100 + math.floor(warm / 4))
end
t.BBIDrawLineCircle(light, rings, 180, -10, 480, 290)
t.BBIBltAdd(picture, light, 0, 0, width, horizon, 0, 0)

-- Mountains, far ones first.
for _, one in ipairs { { -40, 95, 200, 0xFF5B4A72 }, { 90, 120, 300, 0xFF4A3D66 }, { -90, 130, 120, 0xFF33294D } } do
  local left, top, right, colour = unpack(one)
  t.BBIDrawTriangle(picture, left, horizon, right, horizon, math.floor((left + right) / 2), top, 0, colour)
end

-- The sea: the sky upside down, blurred along its rows, and darker.
for y = 0, height - horizon - 1 do t.BBIBlt(sea, picture, 0, y, width, 1, 0, horizon - 1 - y) end
t.BBIBltUBlur(picture, sea, 0, horizon, width, height - horizon, 0, 0, 24)
t.BBIDrawColorFill(light, 0, 0, width, height, 0, 0xFFB0A0A8)
t.BBIBltMul(picture, light, 0, horizon, width, height - horizon, 0, 0)

local pixels = picture:pixels()
local stream = t.encode("inda", pixels)
print(("%d bytes of pixels are %d as a stream"):format(#pixels, #stream))
assert(t.decode("inda", stream, #pixels) == pixels)

-- A bitmap file of 32 bits a pixel, its rows downwards.
local name = arg[1] or "evening.bmp"
local file = assert(io.open(name, "wb"))
local head = ffi.new("int32_t[13]", 54 + #pixels, 0, 54, 40, width, -height, 32 * 65536 + 1)
file:write("BM", ffi.string(head, 52), pixels)
file:close()
print(name .. " written")
