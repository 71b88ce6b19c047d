-- Replays the recorded calls through the checked functions, and compares results and memory: replay.lua CALLS
-- Then again with each block a byte too short, which has to be refused, or the byte is neither needed nor touched.
local ffi = require("ffi")
local tessaro = require("tessaro")

local function memory_of(text)
  local parts = {}
  for word in text:gmatch("%S+") do
    local value, count = word:match("^(%x%x)%*(%d+)$")
    parts[#parts + 1] = value and string.char(tonumber(value, 16)):rep(tonumber(count))
      or word:gsub("%x%x", function(two) return string.char(tonumber(two, 16)) end)
  end
  return table.concat(parts)
end

local function bits(kind, words, text)
  local high, low = tonumber(text:sub(1, 8), 16), tonumber(text:sub(9, 16), 16)
  local from = ffi.new("uint32_t[2]", low and { low, high } or { high, 0 })
  return ffi.cast(kind .. "*", from)[0], words
end

-- What is not as it was recorded; nil where block `cut` has no byte to lose.
local function call(lines, cut)
  local blocks, sizes, expected, given, wrong, name = {}, {}, {}, {}, {}, nil
  for _, line in ipairs(lines) do
    local kind, rest = line:match("^(%S+) ?(.*)$")
    local words = {}
    if kind ~= "block" and kind ~= "after" then
      for word in rest:gmatch("%S+") do words[#words + 1] = tonumber(word) or word end
    end
    if kind == "call" then
      name = rest
    elseif kind == "block" or kind == "after" then
      local b, text = rest:match("^(%d+) ?(.*)$")
      b = tonumber(b)
      local data = memory_of(text)
      if kind == "after" then
        expected[b] = data
      else
        if b == cut then
          if #data == 0 then return nil end
          data = data:sub(1, -2)
        end
        blocks[b], sizes[b] = ffi.new("uint8_t[?]", #data), #data
        ffi.copy(blocks[b], data, #data)
      end
    elseif kind == "image" then
      given[#given + 1] = tessaro.image_at(blocks[words[1]], words[2])
    elseif kind == "memory" then
      given[#given + 1] = blocks[words[1]]
    elseif kind == "sound" then
      given[#given + 1] = { format = words[2], count = words[3], data = blocks[words[1]] }
    elseif kind == "number" then
      given[#given + 1] = words[1]
    elseif kind == "float" or kind == "double" then
      given[#given + 1] = bits(kind, words, rest)
    elseif kind == "result" then
      for b = 0, #blocks do if blocks[b] then expected[b] = ffi.string(blocks[b], sizes[b]) end end
      local result = tessaro[name](unpack(given))
      if words[1] ~= "void" and result ~= words[2] then wrong[1] = ("result %s, recorded %s"):format(result, words[2]) end
    elseif kind == "any" then
      expected[words[1]] = ffi.string(blocks[words[1]], sizes[words[1]])
    end
  end
  for b, data in pairs(expected) do
    if ffi.string(blocks[b], sizes[b]) ~= data then wrong[#wrong + 1] = ("block %d differs"):format(b) end
  end
  return wrong
end

local file = assert(io.open(arg[1], "rb"))
assert(file:read("*l") == "tessaro calls 1", "not a set of calls")
local calls, lines = {}, nil
for line in file:lines() do
  if line == "" then
    lines = {}
    calls[#calls + 1] = lines
  else
    lines[#lines + 1] = line
  end
end

local failed, cuts, refused = 0, 0, 0
for at, lines in ipairs(calls) do
  local done, wrong = pcall(call, lines, -1)
  if not done then wrong = { wrong } end
  if #wrong > 0 then
    print(("call %d, %s: %s"):format(at, lines[1], table.concat(wrong, "; ")))
    failed = failed + 1
  end
  local _, blocks = table.concat(lines, "\n"):gsub("\nblock ", "")
  for cut = 0, blocks - 1 do
    local done, wrong = pcall(call, lines, cut)
    if not done then refused = refused + 1 end
    if not done or wrong then cuts = cuts + 1 end
  end
end
print(("%d calls replayed, %d came out otherwise; %d of %d short blocks refused"):format(#calls, failed, refused, cuts))
os.exit(failed == 0 and #calls > 0 and refused >= 0.9 * cuts)
