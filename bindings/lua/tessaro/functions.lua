-- Made by bindings/lua/generate.py from the description of the functions. Do not edit.
local check = require("tessaro.check")

local library = check.load[[
typedef struct { int32_t format, count; void* data; } WaveBuffer;
typedef intptr_t (CDECL *TessaroMethod1)(intptr_t);
typedef intptr_t (CDECL *TessaroMethod4)(intptr_t, intptr_t, intptr_t, intptr_t);
typedef intptr_t (CALL *TessaroCallback2)(intptr_t, intptr_t);
typedef void (CDECL *TessaroWorker)(void);
typedef int32_t (CALL *TessaroHook)(void*, uintptr_t, uintptr_t, intptr_t, intptr_t);
int32_t CALL iwave11Encoder(void*, void*, uint32_t, void*);
int32_t CALL iwave11Decoder(void*, void*, uint32_t);
int32_t CALL iwave12Encoder(void*, void*, uint32_t, void*);
int32_t CALL iwave12Decoder(void*, void*, uint32_t);
int32_t CALL iwave32Encoder(void*, void*, uint32_t, void*);
int32_t CALL iwave32Decoder(void*, void*, uint32_t);
int32_t CALL iwave21Encoder(void*, void*, uint32_t, void*);
int32_t CALL iwave21Decoder(void*, void*, uint32_t);
int32_t CALL iwave22Encoder(void*, void*, uint32_t, void*);
int32_t CALL iwave22Decoder(void*, void*, uint32_t);
int32_t CALL ichshift2Encoder(void*, void*, uint32_t, void*);
int32_t CALL ichshift2Decoder(void*, void*, uint32_t);
int32_t CALL ichshift3Encoder(void*, void*, uint32_t, void*);
int32_t CALL ichshift3Decoder(void*, void*, uint32_t);
int32_t CALL ichshift4Encoder(void*, void*, uint32_t, void*);
int32_t CALL ichshift4Decoder(void*, void*, uint32_t);
int32_t CALL iEncoder(void*, void*, uint32_t, void*);
int32_t CALL iDecoder(void*, void*, uint32_t);
int32_t CALL iDecoderSafe(void*, void*, uint32_t, uint32_t);
int32_t CALL ioEncoder(void*, void*, uint32_t, void*);
int32_t CALL ioDecoder(void*, void*, uint32_t);
int32_t CALL ioDecoderSafe(void*, void*, uint32_t, uint32_t);
int32_t CALL ib18Encoder(void*, void*, uint32_t, void*);
int32_t CALL ib18Decoder(void*, void*, uint32_t);
int32_t CALL ib18DecoderSafe(void*, void*, uint32_t, uint32_t);
int32_t CALL ib18EncoderEx(void*, void*, uint32_t, void*);
int32_t CALL ib18DecoderEx(void*, void*, uint32_t);
int32_t CALL ib18DecoderExSafe(void*, void*, uint32_t, uint32_t);
int32_t CALL iabrEncoder(void*, void*, uint32_t, void*);
int32_t CALL iabrDecoder(void*, void*, uint32_t);
int32_t CALL iabrDecoderSafe(void*, void*, uint32_t, uint32_t);
int32_t CALL inabeEncoder(void*, void*, uint32_t, void*);
int32_t CALL inabeDecoder(void*, void*, uint32_t);
int32_t CALL inabeDecoderEx(void*, void*, uint32_t);
int32_t CALL inabeDecoderSafe(void*, void*, uint32_t, uint32_t);
int32_t CALL inabeDecoderExSafe(void*, void*, uint32_t, uint32_t);
int32_t CALL imistEncoder(void*, void*, uint32_t, void*);
int32_t CALL imistDecoder(void*, void*, uint32_t);
int32_t CALL imistDecoderSafe(void*, void*, uint32_t, uint32_t);
int32_t CALL indaEncoder(void*, void*, uint32_t, void*);
int32_t CALL indaDecoder(void*, void*, uint32_t);
int32_t CALL indaDecoderSafe(void*, void*, uint32_t, uint32_t);
int32_t CALL icaEncoder(void*, void*, uint32_t, void*);
int32_t CALL icaDecoder(void*, void*, uint32_t);
int32_t CALL icaDecoderSafe(void*, void*, uint32_t, uint32_t);
int32_t CALL c2fEncoder(void*, void*, uint32_t, void*);
int32_t CALL c2fDecoder(void*, void*, uint32_t, uint32_t);
int32_t CALL DecodeImageHead(void*, int32_t, void*, void*);
int32_t CALL DecodeImage(void*, void*, int32_t);
int32_t CALL BBIDrawLine(void*, int32_t, int32_t, int32_t, int32_t, uint32_t, uint32_t);
int32_t CALL BBIDotThick(void*, int32_t, int32_t, int32_t, int32_t, uint32_t, uint32_t);
int32_t CALL BBILineThick(void*, int32_t, int32_t, int32_t, int32_t, uint32_t, uint32_t, int32_t);
int32_t CALL BBIDrawGradationLine(void*, void*, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIDrawAlphaLine(void*, void*, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIDrawColorFill(void*, int32_t, int32_t, int32_t, int32_t, uint32_t, uint32_t);
int32_t CALL BBIDrawColorTile(void*, int32_t, int32_t, int32_t, int32_t, uint32_t, int32_t, int32_t, uint32_t, uint32_t, uint32_t, uint32_t);
int32_t CALL BBIDrawBox(void*, int32_t, int32_t, int32_t, int32_t, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t);
int32_t CALL BBIDrawGradationBox(void*, void*, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIDrawMultiplyLineBox(void*, void*, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIDrawExclusiveLineBox(void*, void*, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIDrawTriangle(void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, uint32_t, uint32_t);
int32_t CALL BBIDrawTriangleA(void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, uint32_t, uint32_t);
int32_t CALL BBIDrawLineCircle(void*, void*, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIDrawPolaCircle(void*, void*, int32_t, int32_t, int32_t, int32_t);
int32_t CALL GetCpuID(void);
int32_t CALL MMX(int32_t);
int32_t CALL BBI(int32_t);
int32_t CALL wave(int32_t);
uint32_t CALL SHR(uint32_t, uint32_t);
int32_t CALL SAR(int32_t, uint32_t);
uint32_t CALL SHL(uint32_t, uint32_t);
uint16_t CALL GetWORD(void*, int32_t);
uint16_t CALL GetInt(void*, int32_t);
uint16_t CALL SetWORD(void*, int32_t, uint32_t);
uint16_t CALL SetInt(void*, int32_t, uint32_t);
uint32_t CALL GetDWORD(void*, int32_t);
uint32_t CALL GetLong(void*, int32_t);
uint32_t CALL SetDWORD(void*, int32_t, uint32_t);
uint32_t CALL SetLong(void*, int32_t, uint32_t);
int32_t CALL dllComp(void*, void*, int32_t);
int32_t CALL CopyMemoryEx(void*, void*, int32_t, int32_t, int32_t);
uint32_t CALL hash32A(void*);
uint32_t CALL hash32W(void*, int32_t);
uint32_t CALL dwColorBlend(uint32_t, uint32_t, float);
intptr_t CALL dllMethod1(TessaroMethod1, intptr_t);
intptr_t CALL dllMethod4(TessaroMethod4, intptr_t, intptr_t, intptr_t, intptr_t);
intptr_t CALL StdCallBack(TessaroCallback2, intptr_t, intptr_t);
uint32_t CALL GetRandom(uint32_t);
int32_t CALL ThreadBegin(TessaroWorker);
int32_t CALL ThreadKill(void);
int32_t CALL WindowProcLoad(void*, TessaroHook, intptr_t);
int32_t CALL WindowProcUnload(void*);
int32_t CALL BBIMapUC(void*, void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIMapUCVA(void*, void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIMapUDVA(void*, void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIMapMCUCVA(void*, void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIMapMCUDVA(void*, void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIMapUCVC(void*, void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIMapUDVC(void*, void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIMapUCVX(void*, void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIMapUCVY(void*, void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIStencilFlip(void*, void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, float, float, int32_t);
int32_t CALL BBIStencilFlipLE(void*, void*, void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, float, float);
int32_t CALL BBIStencilFlipLEFix(void*, void*, void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, float, float);
int32_t CALL BBIStencilAddsigned(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, float, uint32_t);
int32_t CALL BBIBlt(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltColor(void*, int32_t, int32_t, int32_t, int32_t, uint32_t, uint32_t, uint32_t);
int32_t CALL BBIBltColorBlend(void*, int32_t, int32_t, int32_t, int32_t, uint32_t, float);
int32_t CALL BBIBltAlpha(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltAdd(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltMul(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltSub(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltXor(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltXor2(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltXor3(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltNot(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltMin(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltMax(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltKeying(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltKeyingFX(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltBlend(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltHalfBlend(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltShiftAlpha(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltShiftBlock(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltTo32from1(void*, void*, void*, int32_t);
int32_t CALL BBIBltTo32from8(void*, void*, void*, int32_t);
int32_t CALL BBIBltTo32from24(void*, void*, int32_t);
int32_t CALL BBIBltTo32from32(void*, void*, int32_t);
int32_t CALL BBIBltToBBIGet(void*, void*, int32_t, int32_t);
int32_t CALL BBIBltTo24As888(void*, void*, int32_t);
int32_t CALL BBIBltTo16As444(void*, void*, int32_t);
int32_t CALL BBIBltTo16As565(void*, void*, int32_t);
int32_t CALL BBIBltTo16As555(void*, void*, int32_t);
int32_t CALL BBIBltTo16As1555(void*, void*, int32_t);
int32_t CALL BBIBltTo8AsGray(void*, void*, int32_t);
int32_t CALL BBIBltTo8AsAlpha(void*, void*, int32_t);
int32_t CALL BBIBltTo1(void*, void*, int32_t);
int32_t CALL BBIBltToX(void*, void*, int32_t, int32_t, uint32_t, float);
int32_t CALL BBIBltToXF(void*, void*, void*, int32_t, int32_t, float);
int32_t CALL BBIBltToF(void*, void*, int32_t, int32_t, uint32_t, float, float, int32_t, void*);
int32_t CALL BBICompare(void*, void*, int32_t);
int32_t CALL BBICompareAny(void*, void*, uint32_t, int32_t);
int32_t CALL BBIColorCount(void*, int32_t);
int32_t CALL BBIColorPalette(void*, void*, int32_t);
int32_t CALL BBITrim(void*, int32_t, uint32_t, uint32_t, void*, void*, void*, void*);
int32_t CALL BBIClear(void*, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIClearRGB(void*, int32_t, int32_t, int32_t);
int32_t CALL BBIClearMask(void*, int32_t, int32_t, int32_t, int32_t, uint32_t);
int32_t CALL BBIMirror(void*);
int32_t CALL BBIVMirror(void*);
int32_t CALL BBIRotation(void*, void*, int32_t);
int32_t CALL BBIKeying(void*, uint32_t);
int32_t CALL BBIKeyingFilter(void*);
int32_t CALL BBIAntiAreas(int32_t, int32_t, int32_t);
int32_t CALL BBIPaint(void*, int32_t, int32_t, uint32_t, void*, void*, void*, void*);
int32_t CALL BBIBltTone(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltToneWB(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, float);
int32_t CALL BBIBltTrueBlend(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, float);
int32_t CALL BBIAutoLevelRGB(void*, int32_t);
int32_t CALL BBIAutoLevelRGBRev(void*, int32_t);
int32_t CALL BBIAutoLevelRGBMul(void*, int32_t);
int32_t CALL BBIAutoLevelWB(void*, int32_t);
int32_t CALL BBIExpandBlt(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, float);
int32_t CALL BBIExpandBlendBlt(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, float);
int32_t CALL BBIExpandColorBlt(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, float, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t, int32_t);
int32_t CALL BBIExpandChooseBlt(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, float, float, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBILinearBlt(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBILinearRender(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, void*, int32_t, int32_t, uint32_t);
void CALL BBIAlphaTableCreate(void*, float, int32_t);
int32_t CALL BBILinear(void*, void*);
int32_t CALL BBILinearBltTest(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIFlip(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, float);
int32_t CALL BBIFlipBlend(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, float);
int32_t CALL BBIDepth(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIDepthMask(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, uint32_t);
int32_t CALL BBIFlipLineX(void*, int32_t, int32_t, int32_t, uint32_t);
int32_t CALL BBIFlipLineY(void*, int32_t, int32_t, int32_t, uint32_t);
int32_t CALL BBIBltUBlur(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltVBlur(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltUBlurLoop(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltVBlurLoop(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltUScale(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltVScale(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIBltHalfSize(void*, void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIColorCutDown1555(void*);
int32_t CALL BBIColorCutDown4444(void*);
int32_t CALL BBIColorCutDown1111(void*);
int32_t CALL BBIChooseCA(void*, void*, int32_t, int32_t);
int32_t CALL BBIChooseCATR(void*, void*, int32_t, int32_t);
int32_t CALL BBIChooseCATS(void*, void*, int32_t, int32_t, float, float, float);
int32_t CALL BBIChooseRGBA(void*, void*, int32_t, int32_t, int32_t, int32_t);
int32_t CALL BBIPaintChoose(void*, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t);
int32_t CALL GetWave(void*, int32_t, int32_t, int32_t, int32_t, void*, void*);
int32_t CALL LetWave(void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL GetWave24(void*, int32_t, int32_t, int32_t, int32_t, void*, void*);
int32_t CALL LetWave24(void*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
int32_t CALL GetWave64(void*, int32_t, int32_t, int32_t, int32_t, void*, void*);
int32_t CALL LetWave64(void*, int32_t, int32_t, int32_t, int32_t, double, double);
int32_t CALL waveFormatEnc(int32_t, int32_t, int32_t);
int32_t CALL waveFormat(const WaveBuffer*, const WaveBuffer*);
int32_t CALL waveBlt(const WaveBuffer*, const WaveBuffer*, int32_t, int32_t, int32_t, float);
int32_t CALL waveBltBlur(const WaveBuffer*, const WaveBuffer*, int32_t, int32_t, int32_t, int32_t);
int32_t CALL waveBltGluder(const WaveBuffer*, const WaveBuffer*, int32_t, int32_t, int32_t, int32_t);
int32_t CALL waveBltAddNoise(const WaveBuffer*, const WaveBuffer*, int32_t, int32_t, int32_t, float);
int32_t CALL waveBltSin(const WaveBuffer*, const WaveBuffer*, int32_t, int32_t, int32_t, float, float, float, float);
int32_t CALL waveBltAdd(const WaveBuffer*, const WaveBuffer*, int32_t, int32_t, int32_t, float);
int32_t CALL waveBltSub(const WaveBuffer*, const WaveBuffer*, int32_t, int32_t, int32_t, float);
int32_t CALL waveBltMul(const WaveBuffer*, const WaveBuffer*, int32_t, int32_t, int32_t, float);
int32_t CALL waveBlt64(const WaveBuffer*, const WaveBuffer*, int32_t, int32_t, int32_t);
int32_t CALL waveNormal(const WaveBuffer*, const WaveBuffer*, int32_t, int32_t, int32_t, float);
int32_t CALL waveClear64(const WaveBuffer*, int32_t, int32_t);
int32_t CALL waveExpand(const WaveBuffer*, const WaveBuffer*, float);
int32_t CALL waveEffectMaximizer24(const WaveBuffer*, void*, void*, int32_t, double, void*, void*);
int32_t CALL waveEffectMaximizer64(const WaveBuffer*, const WaveBuffer*, void*, void*, int32_t, double, void*, void*);
int32_t CALL waveEffectReverbA1(const WaveBuffer*, void*, const WaveBuffer*, void*, int32_t, double, int32_t, int32_t, int32_t, void*);
int32_t CALL wavefft(const WaveBuffer*, int32_t, int32_t, void*, void*);
int32_t CALL wavefft2(const WaveBuffer*, int32_t, int32_t, void*, void*);
]]

local functions = {}

--- Differences of bytes, the reference one place before, 128 before the start.
---@param source tessaro.Buffer What is transformed. At least length bytes.
---@param destination tessaro.Buffer What comes of it; of an odd length of 16-bit words the last byte is
---  left alone. At least length bytes.
---@param length integer The size of both.
---@param written tessaro.Buffer The number of bytes made: the length, or for 16-bit words the even part
---  of it. At least 1 words.
---@return integer 0: Always.
function functions.iwave11Encoder(source, destination, length, written)
  length = check.uint32_t("length", length)
  return library.iwave11Encoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length,
    check.memory("written", written, 4, 0, true))
end

--- Undoes `iwave11Encoder`.
---@param source tessaro.Buffer What is transformed. At least length bytes.
---@param destination tessaro.Buffer What comes of it; of an odd length of 16-bit words the last byte is
---  left alone. At least length bytes.
---@param length integer The size of both.
---@return integer 0: Always.
function functions.iwave11Decoder(source, destination, length)
  length = check.uint32_t("length", length)
  return library.iwave11Decoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length)
end

--- Differences of bytes, the reference two places before, 128 before the start.
---@param source tessaro.Buffer What is transformed. At least length bytes.
---@param destination tessaro.Buffer What comes of it; of an odd length of 16-bit words the last byte is
---  left alone. At least length bytes.
---@param length integer The size of both.
---@param written tessaro.Buffer The number of bytes made: the length, or for 16-bit words the even part
---  of it. At least 1 words.
---@return integer 0: Always.
function functions.iwave12Encoder(source, destination, length, written)
  length = check.uint32_t("length", length)
  return library.iwave12Encoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length,
    check.memory("written", written, 4, 0, true))
end

--- Undoes `iwave12Encoder`.
---@param source tessaro.Buffer What is transformed. At least length bytes.
---@param destination tessaro.Buffer What comes of it; of an odd length of 16-bit words the last byte is
---  left alone. At least length bytes.
---@param length integer The size of both.
---@return integer 0: Always.
function functions.iwave12Decoder(source, destination, length)
  length = check.uint32_t("length", length)
  return library.iwave12Decoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length)
end

--- Differences of bytes, the reference four places before, 128 before the start.
---@param source tessaro.Buffer What is transformed. At least length bytes.
---@param destination tessaro.Buffer What comes of it; of an odd length of 16-bit words the last byte is
---  left alone. At least length bytes.
---@param length integer The size of both.
---@param written tessaro.Buffer The number of bytes made: the length, or for 16-bit words the even part
---  of it. At least 1 words.
---@return integer 0: Always.
function functions.iwave32Encoder(source, destination, length, written)
  length = check.uint32_t("length", length)
  return library.iwave32Encoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length,
    check.memory("written", written, 4, 0, true))
end

--- Undoes `iwave32Encoder`.
---@param source tessaro.Buffer What is transformed. At least length bytes.
---@param destination tessaro.Buffer What comes of it; of an odd length of 16-bit words the last byte is
---  left alone. At least length bytes.
---@param length integer The size of both.
---@return integer 0: Always.
function functions.iwave32Decoder(source, destination, length)
  length = check.uint32_t("length", length)
  return library.iwave32Decoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length)
end

--- Differences of little-endian 16-bit words, the reference one word before, 0 before the start.
---
--- The last byte of an odd length is neither coded nor copied: the host carries it.
---@param source tessaro.Buffer What is transformed. At least length bytes.
---@param destination tessaro.Buffer What comes of it; of an odd length of 16-bit words the last byte is
---  left alone. At least length bytes.
---@param length integer The size of both.
---@param written tessaro.Buffer The number of bytes made: the length, or for 16-bit words the even part
---  of it. At least 1 words.
---@return integer 0: Always.
function functions.iwave21Encoder(source, destination, length, written)
  length = check.uint32_t("length", length)
  return library.iwave21Encoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length,
    check.memory("written", written, 4, 0, true))
end

--- Undoes `iwave21Encoder`.
---@param source tessaro.Buffer What is transformed. At least length bytes.
---@param destination tessaro.Buffer What comes of it; of an odd length of 16-bit words the last byte is
---  left alone. At least length bytes.
---@param length integer The size of both.
---@return integer 0: Always.
function functions.iwave21Decoder(source, destination, length)
  length = check.uint32_t("length", length)
  return library.iwave21Decoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length)
end

--- Differences of little-endian 16-bit words, the reference two words before, 0 before the start.
---
--- The last byte of an odd length is neither coded nor copied: the host carries it.
---@param source tessaro.Buffer What is transformed. At least length bytes.
---@param destination tessaro.Buffer What comes of it; of an odd length of 16-bit words the last byte is
---  left alone. At least length bytes.
---@param length integer The size of both.
---@param written tessaro.Buffer The number of bytes made: the length, or for 16-bit words the even part
---  of it. At least 1 words.
---@return integer 0: Always.
function functions.iwave22Encoder(source, destination, length, written)
  length = check.uint32_t("length", length)
  return library.iwave22Encoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length,
    check.memory("written", written, 4, 0, true))
end

--- Undoes `iwave22Encoder`.
---@param source tessaro.Buffer What is transformed. At least length bytes.
---@param destination tessaro.Buffer What comes of it; of an odd length of 16-bit words the last byte is
---  left alone. At least length bytes.
---@param length integer The size of both.
---@return integer 0: Always.
function functions.iwave22Decoder(source, destination, length)
  length = check.uint32_t("length", length)
  return library.iwave22Decoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length)
end

--- Parts bytes into two planes.
---@param source tessaro.Buffer What is transformed. At least length bytes.
---@param destination tessaro.Buffer What comes of it. At least length bytes.
---@param length integer The size of both.
---@param written tessaro.Buffer The number of bytes made: the length. At least 1 words.
---@return integer 0: Always.
function functions.ichshift2Encoder(source, destination, length, written)
  length = check.uint32_t("length", length)
  return library.ichshift2Encoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length,
    check.memory("written", written, 4, 0, true))
end

--- Puts two planes together again.
---@param source tessaro.Buffer What is transformed. At least length bytes.
---@param destination tessaro.Buffer What comes of it. At least length bytes.
---@param length integer The size of both.
---@return integer 0: Always.
function functions.ichshift2Decoder(source, destination, length)
  length = check.uint32_t("length", length)
  return library.ichshift2Decoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length)
end

--- Parts bytes into three planes.
---@param source tessaro.Buffer What is transformed. At least length bytes.
---@param destination tessaro.Buffer What comes of it. At least length bytes.
---@param length integer The size of both.
---@param written tessaro.Buffer The number of bytes made: the length. At least 1 words.
---@return integer 0: Always.
function functions.ichshift3Encoder(source, destination, length, written)
  length = check.uint32_t("length", length)
  return library.ichshift3Encoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length,
    check.memory("written", written, 4, 0, true))
end

--- Puts three planes together again.
---@param source tessaro.Buffer What is transformed. At least length bytes.
---@param destination tessaro.Buffer What comes of it. At least length bytes.
---@param length integer The size of both.
---@return integer 0: Always.
function functions.ichshift3Decoder(source, destination, length)
  length = check.uint32_t("length", length)
  return library.ichshift3Decoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length)
end

--- Parts bytes into four planes.
---@param source tessaro.Buffer What is transformed. At least length bytes.
---@param destination tessaro.Buffer What comes of it. At least length bytes.
---@param length integer The size of both.
---@param written tessaro.Buffer The number of bytes made: the length. At least 1 words.
---@return integer 0: Always.
function functions.ichshift4Encoder(source, destination, length, written)
  length = check.uint32_t("length", length)
  return library.ichshift4Encoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length,
    check.memory("written", written, 4, 0, true))
end

--- Puts four planes together again.
---@param source tessaro.Buffer What is transformed. At least length bytes.
---@param destination tessaro.Buffer What comes of it. At least length bytes.
---@param length integer The size of both.
---@return integer 0: Always.
function functions.ichshift4Decoder(source, destination, length)
  length = check.uint32_t("length", length)
  return library.ichshift4Decoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length)
end

--- Codes pairs of bytes, each against the pair before.
---
--- A pair costs 3 bits (equal to the one before) to 19.
---@param source tessaro.Buffer What is coded. At least length bytes.
---@param destination tessaro.Buffer The stream. At least length bytes.
---@param length integer The size of the source, and of the memory at the destination.
---@param written tessaro.Buffer Bytes of the stream; untouched where the source is shorter than the
---  minimum. At least 1 words.
---@return integer 0: The stream is complete and shorter than the limit.
---  1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
---  first `*written` bytes of a stream that was given up.
function functions.iEncoder(source, destination, length, written)
  length = check.uint32_t("length", length)
  return library.iEncoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length,
    check.memory("written", written, 4, 0, true))
end

--- Decodes a trusted stream of `i`.
---
--- A buffer has an end, so the work is done by `iDecoderSafe`: a stream that is damaged or cut off returns 1
--- here, and nothing behind it is read.
---@param stream tessaro.Buffer The stream.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done.
---  1: The count is 0.
function functions.iDecoder(stream, destination, count)
  if count == 0 then return 0 end  -- it asks for nothing, not even a stream
  return functions.iDecoderSafe(stream, destination, check.size("stream", stream), count)
end

--- Decodes any stream of `i`, safely.
---@param stream tessaro.Buffer The stream. At least stream_size bytes.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param stream_size integer Its size.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done.
---  1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
---  the bytes that were made.
function functions.iDecoderSafe(stream, destination, stream_size, count)
  stream_size = check.uint32_t("stream_size", stream_size)
  count = check.uint32_t("count", count)
  return library.iDecoderSafe(
    check.memory("stream", stream, stream_size, 0, false),
    check.memory("destination", destination, count, 0, true),
    stream_size,
    count)
end

--- Codes pixels that repeat the one before.
---
--- A group of four bytes that equals the one before costs one bit, any other 33.
---@param source tessaro.Buffer What is coded. At least length bytes.
---@param destination tessaro.Buffer The stream. At least length bytes.
---@param length integer The size of the source, and of the memory at the destination.
---@param written tessaro.Buffer Bytes of the stream; untouched where the source is shorter than the
---  minimum. At least 1 words.
---@return integer 0: The stream is complete and shorter than the limit.
---  1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
---  first `*written` bytes of a stream that was given up.
function functions.ioEncoder(source, destination, length, written)
  length = check.uint32_t("length", length)
  return library.ioEncoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length,
    check.memory("written", written, 4, 0, true))
end

--- Decodes a trusted stream of `io`.
---
--- A buffer has an end, so the work is done by `ioDecoderSafe`: a stream that is damaged or cut off returns 1
--- here, and nothing behind it is read.
---@param stream tessaro.Buffer The stream.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done.
---  1: The count is 0.
function functions.ioDecoder(stream, destination, count)
  if count == 0 then return 0 end  -- it asks for nothing, not even a stream
  return functions.ioDecoderSafe(stream, destination, check.size("stream", stream), count)
end

--- Decodes any stream of `io`, safely.
---@param stream tessaro.Buffer The stream. At least stream_size bytes.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param stream_size integer Its size.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done.
---  1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
---  the bytes that were made.
function functions.ioDecoderSafe(stream, destination, stream_size, count)
  stream_size = check.uint32_t("stream_size", stream_size)
  count = check.uint32_t("count", count)
  return library.ioDecoderSafe(
    check.memory("stream", stream, stream_size, 0, false),
    check.memory("destination", destination, count, 0, true),
    stream_size,
    count)
end

--- Codes blocks of six bytes that repeat the byte before, or are the one that most often follows it in this
--- source, or are sent.
---
--- 256 bytes of every stream are the table of successors.
---@param source tessaro.Buffer What is coded. At least length bytes.
---@param destination tessaro.Buffer The stream. At least length bytes.
---@param length integer The size of the source, and of the memory at the destination.
---@param written tessaro.Buffer Bytes of the stream; untouched where the source is shorter than the
---  minimum. At least 1 words.
---@return integer 0: The stream is complete and shorter than the limit.
---  1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
---  first `*written` bytes of a stream that was given up.
function functions.ib18Encoder(source, destination, length, written)
  length = check.uint32_t("length", length)
  return library.ib18Encoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length,
    check.memory("written", written, 4, 0, true))
end

--- Decodes a trusted stream of `ib18`.
---
--- A buffer has an end, so the work is done by `ib18DecoderSafe`: a stream that is damaged or cut off returns
--- 1 here, and nothing behind it is read.
---@param stream tessaro.Buffer The stream.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done; also for a count of 0.
function functions.ib18Decoder(stream, destination, count)
  if count == 0 then return 0 end  -- it asks for nothing, not even a stream
  return functions.ib18DecoderSafe(stream, destination, check.size("stream", stream), count)
end

--- Decodes any stream of `ib18`, safely.
---@param stream tessaro.Buffer The stream. At least stream_size bytes.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param stream_size integer Its size.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done.
---  1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
---  the bytes that were made.
function functions.ib18DecoderSafe(stream, destination, stream_size, count)
  stream_size = check.uint32_t("stream_size", stream_size)
  count = check.uint32_t("count", count)
  return library.ib18DecoderSafe(
    check.memory("stream", stream, stream_size, 0, false),
    check.memory("destination", destination, count, 0, true),
    stream_size,
    count)
end

--- Codes as `ib18Encoder` does, one channel of 32-bit pixels after another.
---
--- The table of successors is that of the plain order. Only a length that is a multiple of 4 is restored.
---@param source tessaro.Buffer What is coded. At least length bytes.
---@param destination tessaro.Buffer The stream. At least length bytes.
---@param length integer The size of the source, and of the memory at the destination.
---@param written tessaro.Buffer Bytes of the stream; untouched where the source is shorter than the
---  minimum. At least 1 words.
---@return integer 0: The stream is complete and shorter than the limit.
---  1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
---  first `*written` bytes of a stream that was given up.
function functions.ib18EncoderEx(source, destination, length, written)
  length = check.uint32_t("length", length)
  return library.ib18EncoderEx(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length,
    check.memory("written", written, 4, 0, true))
end

--- Decodes a trusted stream of `ib18`, one channel after another.
---
--- A buffer has an end, so the work is done by `ib18DecoderExSafe`: a stream that is damaged or cut off
--- returns 1 here, and nothing behind it is read.
---@param stream tessaro.Buffer The stream.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done; also for a count of 0.
function functions.ib18DecoderEx(stream, destination, count)
  if count == 0 then return 0 end  -- it asks for nothing, not even a stream
  return functions.ib18DecoderExSafe(stream, destination, check.size("stream", stream), count)
end

--- Decodes any stream of `ib18`, one channel after another, safely.
---@param stream tessaro.Buffer The stream. At least stream_size bytes.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param stream_size integer Its size.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done.
---  1: The stream ended early or the count is 0 (nothing is changed then). What was made lies at
---  positions 0, 4, 8, ..., then 1, 5, ....
function functions.ib18DecoderExSafe(stream, destination, stream_size, count)
  stream_size = check.uint32_t("stream_size", stream_size)
  count = check.uint32_t("count", count)
  return library.ib18DecoderExSafe(
    check.memory("stream", stream, stream_size, 0, false),
    check.memory("destination", destination, count, 0, true),
    stream_size,
    count)
end

--- Codes groups of 4, 8, 16, ...
---
--- bytes, each group with 8, 5, 3 or 0 bits a byte, whatever differs from the byte before.
---
--- A stream that is given up ends with one more byte.
---@param source tessaro.Buffer What is coded. At least length bytes.
---@param destination tessaro.Buffer The stream. At least length bytes.
---@param length integer The size of the source, and of the memory at the destination.
---@param written tessaro.Buffer Bytes of the stream; untouched where the source is shorter than the
---  minimum. At least 1 words.
---@return integer 0: The stream is complete and shorter than the limit.
---  1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
---  first `*written` bytes of a stream that was given up.
function functions.iabrEncoder(source, destination, length, written)
  length = check.uint32_t("length", length)
  return library.iabrEncoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length,
    check.memory("written", written, 4, 0, true))
end

--- Decodes a trusted stream of `iabr`.
---
--- A buffer has an end, so the work is done by `iabrDecoderSafe`: a stream that is damaged or cut off returns
--- 1 here, and nothing behind it is read.
---@param stream tessaro.Buffer The stream.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done.
---  1: The count is 0.
function functions.iabrDecoder(stream, destination, count)
  if count == 0 then return 0 end  -- it asks for nothing, not even a stream
  return functions.iabrDecoderSafe(stream, destination, check.size("stream", stream), count)
end

--- Decodes any stream of `iabr`, safely.
---@param stream tessaro.Buffer The stream. At least stream_size bytes.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param stream_size integer Its size.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done.
---  1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
---  the bytes that were made.
function functions.iabrDecoderSafe(stream, destination, stream_size, count)
  stream_size = check.uint32_t("stream_size", stream_size)
  count = check.uint32_t("count", count)
  return library.iabrDecoderSafe(
    check.memory("stream", stream, stream_size, 0, false),
    check.memory("destination", destination, count, 0, true),
    stream_size,
    count)
end

--- Codes groups of `4 * 2^k` bytes that agree in their top bits, in a few bits each, with an escape for those
--- that do not fit.
---
--- A stream that is given up ends with one more byte.
---@param source tessaro.Buffer What is coded. At least length bytes.
---@param destination tessaro.Buffer The stream. At least length bytes.
---@param length integer The size of the source, and of the memory at the destination.
---@param written tessaro.Buffer Bytes of the stream; untouched where the source is shorter than the
---  minimum. At least 1 words.
---@return integer 0: The stream is complete and shorter than the limit.
---  1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
---  first `*written` bytes of a stream that was given up.
function functions.inabeEncoder(source, destination, length, written)
  length = check.uint32_t("length", length)
  return library.inabeEncoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length,
    check.memory("written", written, 4, 0, true))
end

--- Decodes a trusted stream of `inabe`.
---
--- A buffer has an end, so the work is done by `inabeDecoderSafe`: a stream that is damaged or cut off
--- returns 1 here, and nothing behind it is read.
---@param stream tessaro.Buffer The stream.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done; also for a count of 0.
function functions.inabeDecoder(stream, destination, count)
  if count == 0 then return 0 end  -- it asks for nothing, not even a stream
  return functions.inabeDecoderSafe(stream, destination, check.size("stream", stream), count)
end

--- Decodes a trusted stream of `inabe` and undoes two transforms in the same pass.
---
--- Pixels that were prepared with `ichshift4Encoder`, then `iwave11Encoder`, then coded, come back with one
--- call; any length does.
---
--- A buffer has an end, so the work is done by `inabeDecoderExSafe`: a stream that is damaged or cut off
--- returns 1 here, and nothing behind it is read.
---@param stream tessaro.Buffer The stream.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done; also for a count of 0.
function functions.inabeDecoderEx(stream, destination, count)
  if count == 0 then return 0 end  -- it asks for nothing, not even a stream
  return functions.inabeDecoderExSafe(stream, destination, check.size("stream", stream), count)
end

--- Decodes any stream of `inabe`, safely.
---@param stream tessaro.Buffer The stream. At least stream_size bytes.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param stream_size integer Its size.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done.
---  1: The stream ended early or the count is 0 (nothing is changed then). From the last four whole codes
---  on, everything up to the end of the group may be wrong.
function functions.inabeDecoderSafe(stream, destination, stream_size, count)
  stream_size = check.uint32_t("stream_size", stream_size)
  count = check.uint32_t("count", count)
  return library.inabeDecoderSafe(
    check.memory("stream", stream, stream_size, 0, false),
    check.memory("destination", destination, count, 0, true),
    stream_size,
    count)
end

--- Decodes any stream of `inabe` and undoes the transforms as `inabeDecoderEx` does, safely.
---@param stream tessaro.Buffer The stream. At least stream_size bytes.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param stream_size integer Its size.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done.
---  1: The stream ended early or the count is 0 (nothing is changed then). What was made lies at
---  positions 0, 4, 8, ..., then 1, 5, ..., and its end may be wrong as for `inabeDecoderSafe`.
function functions.inabeDecoderExSafe(stream, destination, stream_size, count)
  stream_size = check.uint32_t("stream_size", stream_size)
  count = check.uint32_t("count", count)
  return library.inabeDecoderExSafe(
    check.memory("stream", stream, stream_size, 0, false),
    check.memory("destination", destination, count, 0, true),
    stream_size,
    count)
end

--- Codes pixels against the pixel before, in two pairs of channels: blue and red, green and alpha.
---
--- A pixel costs 6 to 34 bits.
---@param source tessaro.Buffer What is coded. At least length bytes.
---@param destination tessaro.Buffer The stream. At least length bytes.
---@param length integer The size of the source, and of the memory at the destination.
---@param written tessaro.Buffer Bytes of the stream; untouched where the source is shorter than the
---  minimum. At least 1 words.
---@return integer 0: The stream is complete and shorter than the limit.
---  1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
---  first `*written` bytes of a stream that was given up.
function functions.imistEncoder(source, destination, length, written)
  length = check.uint32_t("length", length)
  return library.imistEncoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length,
    check.memory("written", written, 4, 0, true))
end

--- Decodes a trusted stream of `imist`.
---
--- A buffer has an end, so the work is done by `imistDecoderSafe`: a stream that is damaged or cut off
--- returns 1 here, and nothing behind it is read.
---@param stream tessaro.Buffer The stream.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done.
---  1: The count is 0.
function functions.imistDecoder(stream, destination, count)
  if count == 0 then return 0 end  -- it asks for nothing, not even a stream
  return functions.imistDecoderSafe(stream, destination, check.size("stream", stream), count)
end

--- Decodes any stream of `imist`, safely.
---@param stream tessaro.Buffer The stream. At least stream_size bytes.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param stream_size integer Its size.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done.
---  1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
---  the bytes that were made.
function functions.imistDecoderSafe(stream, destination, stream_size, count)
  stream_size = check.uint32_t("stream_size", stream_size)
  count = check.uint32_t("count", count)
  return library.imistDecoderSafe(
    check.memory("stream", stream, stream_size, 0, false),
    check.memory("destination", destination, count, 0, true),
    stream_size,
    count)
end

--- Codes blocks of eight bytes, each byte whole or as the bits in which it differs from a byte one to eight
--- places back.
---
--- The encoder tries every distance and every number of bits.
---@param source tessaro.Buffer What is coded. At least length bytes.
---@param destination tessaro.Buffer The stream. At least length bytes.
---@param length integer The size of the source, and of the memory at the destination.
---@param written tessaro.Buffer Bytes of the stream; untouched where the source is shorter than the
---  minimum. At least 1 words.
---@return integer 0: The stream is complete and shorter than the limit.
---  1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
---  first `*written` bytes of a stream that was given up.
function functions.indaEncoder(source, destination, length, written)
  length = check.uint32_t("length", length)
  return library.indaEncoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length,
    check.memory("written", written, 4, 0, true))
end

--- Decodes a trusted stream of `inda`.
---
--- A buffer has an end, so the work is done by `indaDecoderSafe`: a stream that is damaged or cut off returns
--- 1 here, and nothing behind it is read.
---@param stream tessaro.Buffer The stream.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done.
---  1: The count is 0.
function functions.indaDecoder(stream, destination, count)
  if count == 0 then return 0 end  -- it asks for nothing, not even a stream
  return functions.indaDecoderSafe(stream, destination, check.size("stream", stream), count)
end

--- Decodes any stream of `inda`, safely.
---@param stream tessaro.Buffer The stream. At least stream_size bytes.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param stream_size integer Its size.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done.
---  1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
---  the bytes that were made; several are made at once, and the last of them may be missing.
function functions.indaDecoderSafe(stream, destination, stream_size, count)
  stream_size = check.uint32_t("stream_size", stream_size)
  count = check.uint32_t("count", count)
  return library.indaDecoderSafe(
    check.memory("stream", stream, stream_size, 0, false),
    check.memory("destination", destination, count, 0, true),
    stream_size,
    count)
end

--- Codes pixels against the pixel before, each byte whole or cut to its low 3 or 5 bits.
---
--- A repeated pixel costs 5 bits, any other 17 to 37.
---@param source tessaro.Buffer What is coded. At least length bytes.
---@param destination tessaro.Buffer The stream. At least length bytes.
---@param length integer The size of the source, and of the memory at the destination.
---@param written tessaro.Buffer Bytes of the stream; untouched where the source is shorter than the
---  minimum. At least 1 words.
---@return integer 0: The stream is complete and shorter than the limit.
---  1: The data does not compress; keep the source. Below the minimum nothing is written, otherwise the
---  first `*written` bytes of a stream that was given up.
function functions.icaEncoder(source, destination, length, written)
  length = check.uint32_t("length", length)
  return library.icaEncoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length, 0, true),
    length,
    check.memory("written", written, 4, 0, true))
end

--- Decodes a trusted stream of `ica`.
---
--- A buffer has an end, so the work is done by `icaDecoderSafe`: a stream that is damaged or cut off returns
--- 1 here, and nothing behind it is read.
---@param stream tessaro.Buffer The stream.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done.
---  1: The count is 0.
function functions.icaDecoder(stream, destination, count)
  if count == 0 then return 0 end  -- it asks for nothing, not even a stream
  return functions.icaDecoderSafe(stream, destination, check.size("stream", stream), count)
end

--- Decodes any stream of `ica`, safely.
---@param stream tessaro.Buffer The stream. At least stream_size bytes.
---@param destination tessaro.Buffer What was coded. At least count bytes.
---@param stream_size integer Its size.
---@param count integer The length of the source, and the memory at the destination.
---@return integer 0: Done.
---  1: The stream ended early or the count is 0 (nothing is changed then). The destination begins with
---  the bytes that were made.
function functions.icaDecoderSafe(stream, destination, stream_size, count)
  stream_size = check.uint32_t("stream_size", stream_size)
  count = check.uint32_t("count", count)
  return library.icaDecoderSafe(
    check.memory("stream", stream, stream_size, 0, false),
    check.memory("destination", destination, count, 0, true),
    stream_size,
    count)
end

--- Codes pixels whose channels stay constant, in blocks of eight pixels.
---
--- Takes any length.
---
--- The stream can be longer than the source.
---@param source tessaro.Buffer What is coded. At least length bytes.
---@param destination tessaro.Buffer The stream. At least length + ceil_div(length, 32) + 3 bytes.
---@param length integer The size of the source, and of the memory at the destination.
---@param written tessaro.Buffer Bytes of the stream. At least 1 words.
---@return integer 0: Always.
function functions.c2fEncoder(source, destination, length, written)
  length = check.uint32_t("length", length)
  return library.c2fEncoder(
    check.memory("source", source, length, 0, false),
    check.memory("destination", destination, length + check.ceil_div(length, 32) + 3, 0, true),
    length,
    check.memory("written", written, 4, 0, true))
end

--- Decodes `c2f`.
---
--- It checks both sizes, and is safe with any stream.
---
--- The zeros at the end of a source whose length is not a multiple of 32 are not stored: behind the last byte
--- of the stream every second byte up to `size` becomes 0, beginning with the first, and the ones between
--- keep
--- what they held. A host therefore clears the destination first. An end part that is longer than the room
--- left is cut, with result 0.
---@param stream tessaro.Buffer The stream. At least stream_size bytes.
---@param destination tessaro.Buffer What was coded. At least size bytes.
---@param stream_size integer Its size.
---@param size integer The length of the source.
---@return integer 0: Done.
---  1: The stream ended early, or describes more than `size` bytes before its end part; the destination
---  begins with what was decoded before that.
function functions.c2fDecoder(stream, destination, stream_size, size)
  stream_size = check.uint32_t("stream_size", stream_size)
  size = check.uint32_t("size", size)
  return library.c2fDecoder(
    check.memory("stream", stream, stream_size, 0, false),
    check.memory("destination", destination, size, 0, true),
    stream_size,
    size)
end

--- The extents of a bitmap in HIMETRIC units, hundredths of a millimetre, not in pixels.
---
--- Elsewhere than on Windows at 96 pixels an inch, rounded to nearest: 8 pixels are 212, and `pixels =
--- round(extent * 96 / 2540)`; so too on Windows where the screen has 96 pixels an inch. Both are set to 0
--- before anything else and stay 0 where there is no bitmap.
---@param file tessaro.Buffer The file as it lies on disk. At least size bytes.
---@param size integer Its size.
---@param width tessaro.Buffer The width. At least 1 words.
---@param height tessaro.Buffer The height. At least 1 words.
---@return integer 0: Handled; also for a file that is no picture, for a picture that is no bitmap (an
---  icon, a cursor, a metafile), and where there is no memory for it.
---  1: The size is out of range.
function functions.DecodeImageHead(file, size, width, height)
  size = check.int32_t("size", size)
  return library.DecodeImageHead(
    check.memory("file", file, size, 0, false),
    size,
    check.memory("width", width, 4, 0, true),
    check.memory("height", height, 4, 0, true))
end

--- Draws a bitmap at (0, 0) of a device context.
---
--- Pixels are `0xAARRGGBB` with alpha 0 where the file has none (`BBIClearMask(image, 0, 0, 0, 255,
--- 0x00FFFFFF)` makes them opaque); the fourth byte of 32-bit bitmaps becomes alpha. The rectangle drawn has
--- as many columns as the number of the picture's HIMETRIC height, and as many rows as that of its HIMETRIC
--- width, cut to the picture and to the destination: all of a picture, unless one edge is over 26 times as
--- long as the other.
---
--- Elsewhere than on Windows a call takes at most 1 GiB of memory, and time for what the destination shows at
--- most: of the worst files known, of 8 MiB or less and drawn to their last row, a bitmap took 0.4 s, a JPEG
--- file 1.4 s, a PNG file 1.8 s and a GIF file 0.8 s of a server's processor.
---@param device tessaro.Image|tessaro.Buffer Elsewhere than on Windows an `ImageRecord`; on Windows an
---  HDC.
---@param file tessaro.Buffer The file as it lies on disk. At least size bytes.
---@param size integer Its size.
---@return integer 0: Handled; also for a file that is no picture, for a picture that is no bitmap (an
---  icon, a cursor, a metafile), and where there is no memory for it.
---  1: The size is out of range.
function functions.DecodeImage(device, file, size)
  size = check.int32_t("size", size)
  return library.DecodeImage(
    (check.image("device", device, true)),
    check.memory("file", file, size, 0, false),
    size)
end

--- Draws the points of the walk; where both ends are one, that pixel.
---@param image tessaro.Image|tessaro.Buffer The image that is drawn on.
---@param x0 integer The first corner or end.
---@param y0 integer The first corner or end.
---@param x1 integer The other corner or end.
---@param y1 integer The other corner or end.
---@param mask integer Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
---@param colour integer The colour.
---@return integer 0: Done, also when nothing lies inside the image.
function functions.BBIDrawLine(image, x0, y0, x1, y1, mask, colour)
  return library.BBIDrawLine(
    (check.image("image", image, true)),
    check.int32_t("x0", x0),
    check.int32_t("y0", y0),
    check.int32_t("x1", x1),
    check.int32_t("y1", y1),
    check.uint32_t("mask", mask),
    check.uint32_t("colour", colour))
end

--- Fills holes along a line: writes each point of the walk of whose neighbours three or four equal the
--- colour.
---
--- Neighbours are the pixels left, right, above and below, inside the image; they are compared in all 32
--- bits,
--- and count as they are when the walk gets there, those that it has written too. Where both ends are one
--- nothing happens.
---@param image tessaro.Image|tessaro.Buffer The image that is drawn on.
---@param x0 integer The first corner or end.
---@param y0 integer The first corner or end.
---@param x1 integer The other corner or end.
---@param y1 integer The other corner or end.
---@param mask integer Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
---@param colour integer The colour.
---@return integer 0: Done, also when nothing lies inside the image.
function functions.BBIDotThick(image, x0, y0, x1, y1, mask, colour)
  return library.BBIDotThick(
    (check.image("image", image, true)),
    check.int32_t("x0", x0),
    check.int32_t("y0", y0),
    check.int32_t("x1", x1),
    check.int32_t("y1", y1),
    check.uint32_t("mask", mask),
    check.uint32_t("colour", colour))
end

--- Grows strokes of the colour towards a line.
---
--- Each point of the walk, which may lie outside the image and is not written itself, has four arms: right,
--- left, down, up, in this order. An arm is scanned inwards, at the distances d = `thickness` to 1: where the
--- pixel lies inside the image and equals the colour in all 32 bits, `found = thickness + 1 - d`; then, where
--- it lies inside and `found >= d`, it is written. found starts at 0 for each arm. So the colour at distance
--- d
--- paints its arm from distance `min(d, thickness + 1 - d)` inwards.
---@param image tessaro.Image|tessaro.Buffer The image that is drawn on.
---@param x0 integer The first corner or end.
---@param y0 integer The first corner or end.
---@param x1 integer The other corner or end.
---@param y1 integer The other corner or end.
---@param mask integer Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
---@param colour integer The colour.
---@param thickness integer The length of an arm.
---@return integer 0: Done, also where both ends are one, which does nothing.
---  1: The thickness is below 1, or the pitch of the image is not 4 * width.
function functions.BBILineThick(image, x0, y0, x1, y1, mask, colour, thickness)
  return library.BBILineThick(
    (check.image("image", image, true)),
    check.int32_t("x0", x0),
    check.int32_t("y0", y0),
    check.int32_t("x1", x1),
    check.int32_t("y1", y1),
    check.uint32_t("mask", mask),
    check.uint32_t("colour", colour),
    check.int32_t("thickness", thickness))
end

--- Draws a gradient line, one step late.
---
--- The walk here has n + 1 steps, in which an error term drops only when it exceeds n, and every step i =
--- 0..n
--- draws the point it reaches. So from n = 2 on the line runs from one past its start to one past its end: a
--- line from (0, 0) to (4, 0) draws x = 1 to 5. For n = 1 it draws its two ends, for n = 0 its start.
---
--- All four bytes are stored: with c0, c1 the bytes of the two colours, t = i / n (0 for n = 0) and
--- `u = (float)(1 - t)`, each is `trunc(c1 * t + c0 * u)`. Between equal colours a byte may come out one
--- less.
---@param image tessaro.Image|tessaro.Buffer The image that is drawn on.
---@param colours tessaro.Image|tessaro.Buffer The first two pixels of its first row are the colours of
---  (x0, y0) and (x1, y1).
---@param x0 integer The first corner or end.
---@param y0 integer The first corner or end.
---@param x1 integer The other corner or end.
---@param y1 integer The other corner or end.
---@return integer 0: Done.
---  1: `colours` is narrower than 2 or has no row.
function functions.BBIDrawGradationLine(image, colours, x0, y0, x1, y1)
  return library.BBIDrawGradationLine(
    (check.image("image", image, true)),
    (check.image("colours", colours, false)),
    check.int32_t("x0", x0),
    check.int32_t("y0", y0),
    check.int32_t("x1", x1),
    check.int32_t("y1", y1))
end

--- Draws an antialiased gradient line, blended by the alpha of its colours, which is part of the gradient.
---
--- M is the greater of |x1 - x0| and |y1 - y0|, N the other; the line goes along x where |x1 - x0| is
--- greater,
--- else along y. It begins at the end where that coordinate is less, and the colours c0 and c1 change places
--- with the ends. The other coordinate moves by s: 1 where the last end's is greater or the same, else -1.
---
--- Two tracks share the coverage: A begins at the start, B at one pixel from it, at s. With
--- `h = (float)(N / M * 0.5)` and `q = (float)((N - h) / M)`, the coverage of A begins at 1 and falls by q a
--- step; below 0 it grows by 1 and A moves by s. That of B begins at h / 2 and grows by q a step; above 1 it
--- falls by 1 and B moves by s. These sums are exact.
---
--- For i = 0..M, both ends included, the colour is c = mix(c0, c1, `trunc((float)(i / M) * 256)`), and a
--- pixel
--- of coverage v becomes mix(pixel, c, `trunc(min(alpha * 0.003921569f * v, 1) * 256)`), alpha being that of
--- c: first A, then B, then, where B is two pixels ahead of A, the one between them with v = 1. Where A or B
--- lies outside the image, none of them is drawn: a horizontal line in the last row draws nothing, nor does a
--- vertical one in the last column. Where both ends are one nothing happens.
---@param image tessaro.Image|tessaro.Buffer The image that is drawn on.
---@param colours tessaro.Image|tessaro.Buffer The first two pixels of its first row are the colours of
---  (x0, y0) and (x1, y1).
---@param x0 integer The first corner or end.
---@param y0 integer The first corner or end.
---@param x1 integer The other corner or end.
---@param y1 integer The other corner or end.
---@return integer 0: Done.
---  1: `colours` is narrower than 2 or has no row.
function functions.BBIDrawAlphaLine(image, colours, x0, y0, x1, y1)
  return library.BBIDrawAlphaLine(
    (check.image("image", image, true)),
    (check.image("colours", colours, false)),
    check.int32_t("x0", x0),
    check.int32_t("y0", y0),
    check.int32_t("x1", x1),
    check.int32_t("y1", y1))
end

--- Fills with one colour.
---@param image tessaro.Image|tessaro.Buffer The image that is drawn on.
---@param x integer The upper left corner.
---@param y integer The upper left corner.
---@param cx integer The size.
---@param cy integer The size.
---@param mask integer Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
---@param colour integer The colour.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIDrawColorFill(image, x, y, cx, cy, mask, colour)
  return library.BBIDrawColorFill(
    (check.image("image", image, true)),
    check.int32_t("x", x),
    check.int32_t("y", y),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.uint32_t("mask", mask),
    check.uint32_t("colour", colour))
end

--- Fills with a checkerboard of four colours: pixel (i, j) of the image has colour number `(i / tile_cx & 1)
--- + 2 * (j / tile_cy & 1)`.
---
--- The pattern begins at the image's corner, not at the box's.
---@param image tessaro.Image|tessaro.Buffer The image that is drawn on.
---@param x integer The upper left corner.
---@param y integer The upper left corner.
---@param cx integer The size.
---@param cy integer The size.
---@param mask integer Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
---@param tile_cx integer The width of a tile; below 1 counts as 1.
---@param tile_cy integer The height of a tile; below 1 counts as 1.
---@param colour0 integer Even columns of tiles in even rows.
---@param colour1 integer Odd columns in even rows.
---@param colour2 integer Even columns in odd rows.
---@param colour3 integer Odd columns in odd rows.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIDrawColorTile(image, x, y, cx, cy, mask, tile_cx, tile_cy, colour0, colour1, colour2, colour3)
  return library.BBIDrawColorTile(
    (check.image("image", image, true)),
    check.int32_t("x", x),
    check.int32_t("y", y),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.uint32_t("mask", mask),
    check.int32_t("tile_cx", tile_cx),
    check.int32_t("tile_cy", tile_cy),
    check.uint32_t("colour0", colour0),
    check.uint32_t("colour1", colour1),
    check.uint32_t("colour2", colour2),
    check.uint32_t("colour3", colour3))
end

--- Fills with a gradient between four corner colours, of which a clipped box shows its part.
---
--- With (sx, sy, sw, sh) the clipped source rectangle, the visible part begins at `(float)(sx / W)` and ends
--- at `(float)((sx + sw) / W)` across, down likewise with H. Column i of n visible ones lies at
--- `u = (1 - f) * begin + f * end` with `f = i / (n - 1)`; rows likewise, but v is rounded to float. A weight
--- is `trunc(max(min(u, 1), 0) * 256)`. With the weights wu and wv the pixel is
--- `mix(mix(top_left, bottom_left, wv), mix(top_right, bottom_right, wv), wu)`.
---
--- Where one column (row) is visible, its weight is 0: it shows the left (top) colours, wherever it lies in
--- the box.
---@param image tessaro.Image|tessaro.Buffer The image that is drawn on.
---@param x integer The upper left corner.
---@param y integer The upper left corner.
---@param cx integer The size.
---@param cy integer The size.
---@param mask integer Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
---@param top_left integer The colour of the corner.
---@param top_right integer The colour of the corner.
---@param bottom_left integer The colour of the corner.
---@param bottom_right integer The colour of the corner.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIDrawBox(image, x, y, cx, cy, mask, top_left, top_right, bottom_left, bottom_right)
  return library.BBIDrawBox(
    (check.image("image", image, true)),
    check.int32_t("x", x),
    check.int32_t("y", y),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.uint32_t("mask", mask),
    check.uint32_t("top_left", top_left),
    check.uint32_t("top_right", top_right),
    check.uint32_t("bottom_left", bottom_left),
    check.uint32_t("bottom_right", bottom_right))
end

--- Fills with a gradient between the upper left 2 x 2 pixels of the pattern, one for each corner.
---
--- With p(column, row) a byte of the pattern, read before the first pixel is written,
--- `left = (float)(v * p(0, 1) + (1 - v) * p(0, 0))` and `right = (float)(v * p(1, 1) + (1 - v) * p(1, 0))`,
--- the byte is `trunc((1 - u) * left + u * right)`.
---@param image tessaro.Image|tessaro.Buffer The image that is drawn on.
---@param pattern tessaro.Image|tessaro.Buffer At least 2 x 2 pixels. It may be part of the image.
---@param x0 integer The first corner or end.
---@param y0 integer The first corner or end.
---@param x1 integer The other corner or end.
---@param y1 integer The other corner or end.
---@return integer 0: Done, also when nothing lies inside the image.
---  1: The pattern is smaller than 2 x 2.
function functions.BBIDrawGradationBox(image, pattern, x0, y0, x1, y1)
  return library.BBIDrawGradationBox(
    (check.image("image", image, true)),
    (check.image("pattern", pattern, false)),
    check.int32_t("x0", x0),
    check.int32_t("y0", y0),
    check.int32_t("x1", x1),
    check.int32_t("y1", y1))
end

--- Multiplies a colour chosen along x with one chosen along y: `a * b / 255` rounded down, byte by byte.
---
--- a is column `trunc(u * (pattern width - 1))` of the pattern's first row, read for each pixel; b is column
--- `trunc(v * (pattern width - 1))` of its second row, read for each row.
---@param image tessaro.Image|tessaro.Buffer The image that is drawn on.
---@param pattern tessaro.Image|tessaro.Buffer At least 2 x 2 pixels. It may be part of the image.
---@param x0 integer The first corner or end.
---@param y0 integer The first corner or end.
---@param x1 integer The other corner or end.
---@param y1 integer The other corner or end.
---@return integer 0: Done, also when nothing lies inside the image.
---  1: The pattern is smaller than 2 x 2.
function functions.BBIDrawMultiplyLineBox(image, pattern, x0, y0, x1, y1)
  return library.BBIDrawMultiplyLineBox(
    (check.image("image", image, true)),
    (check.image("pattern", pattern, false)),
    check.int32_t("x0", x0),
    check.int32_t("y0", y0),
    check.int32_t("x1", x1),
    check.int32_t("y1", y1))
end

--- As BBIDrawMultiplyLineBox, with `a + b`, above 255 folded back to `510 - (a + b)`.
---@param image tessaro.Image|tessaro.Buffer The image that is drawn on.
---@param pattern tessaro.Image|tessaro.Buffer At least 2 x 2 pixels. It may be part of the image.
---@param x0 integer The first corner or end.
---@param y0 integer The first corner or end.
---@param x1 integer The other corner or end.
---@param y1 integer The other corner or end.
---@return integer 0: Done, also when nothing lies inside the image.
---  1: The pattern is smaller than 2 x 2.
function functions.BBIDrawExclusiveLineBox(image, pattern, x0, y0, x1, y1)
  return library.BBIDrawExclusiveLineBox(
    (check.image("image", image, true)),
    (check.image("pattern", pattern, false)),
    check.int32_t("x0", x0),
    check.int32_t("y0", y0),
    check.int32_t("x1", x1),
    check.int32_t("y1", y1))
end

--- Fills the pixels strictly inside: E(0, 1), E(1, 2) and E(2, 0) are all negative or all positive.
---
--- No pixel on an edge is drawn, and none of a triangle without area.
---@param image tessaro.Image|tessaro.Buffer The image that is drawn on.
---@param x0 integer The first corner or end.
---@param y0 integer The first corner or end.
---@param x1 integer The other corner or end.
---@param y1 integer The other corner or end.
---@param x2 integer The third corner.
---@param y2 integer The third corner.
---@param mask integer Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
---@param colour integer The colour.
---@return integer 0: Always.
function functions.BBIDrawTriangle(image, x0, y0, x1, y1, x2, y2, mask, colour)
  return library.BBIDrawTriangle(
    (check.image("image", image, true)),
    check.int32_t("x0", x0),
    check.int32_t("y0", y0),
    check.int32_t("x1", x1),
    check.int32_t("y1", y1),
    check.int32_t("x2", x2),
    check.int32_t("y2", y2),
    check.uint32_t("mask", mask),
    check.uint32_t("colour", colour))
end

--- Fills the pixels inside and on the edges: where E(0, 1) is positive the other two are 0 or more, else they
--- are 0 or less.
---
--- Of a triangle without area these are the pixels exactly on its segment. Where the corners are in clockwise
--- order as seen on the screen, as (0, 0), (4, 0), (0, 4) are, the edge from the first to the second is left
--- out.
---@param image tessaro.Image|tessaro.Buffer The image that is drawn on.
---@param x0 integer The first corner or end.
---@param y0 integer The first corner or end.
---@param x1 integer The other corner or end.
---@param y1 integer The other corner or end.
---@param x2 integer The third corner.
---@param y2 integer The third corner.
---@param mask integer Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
---@param colour integer The colour.
---@return integer 0: Always.
function functions.BBIDrawTriangleA(image, x0, y0, x1, y1, x2, y2, mask, colour)
  return library.BBIDrawTriangleA(
    (check.image("image", image, true)),
    check.int32_t("x0", x0),
    check.int32_t("y0", y0),
    check.int32_t("x1", x1),
    check.int32_t("y1", y1),
    check.int32_t("x2", x2),
    check.int32_t("y2", y2),
    check.uint32_t("mask", mask),
    check.uint32_t("colour", colour))
end

--- Fills with rings: from the first row of the palette.
---@param image tessaro.Image|tessaro.Buffer The image that is drawn on.
---@param palette tessaro.Image|tessaro.Buffer The colours.
---@param x0 integer The first corner or end.
---@param y0 integer The first corner or end.
---@param x1 integer The other corner or end.
---@param y1 integer The other corner or end.
---@return integer 0: Done, also when nothing lies inside the image.
---  1: The palette is narrower than 2 or has no row.
function functions.BBIDrawLineCircle(image, palette, x0, y0, x1, y1)
  return library.BBIDrawLineCircle(
    (check.image("image", image, true)),
    (check.image("palette", palette, false)),
    check.int32_t("x0", x0),
    check.int32_t("y0", y0),
    check.int32_t("x1", x1),
    check.int32_t("y1", y1))
end

--- Fills with rings and rays: from the row of the palette that the angle selects.
---
--- Here `v * v` in r is rounded to float. The fraction t of a turn is `atan(u / v) * 0.159154976`, plus 0.25
--- where v is negative and 0.75 where it is positive; where v is 0 it is 0.5 for a negative u, else 0. So 0
--- is
--- to the right, 0.25 above, 0.5 to the left, 0.75 below, if the corners are the upper left and the lower
--- right. The row is `min(trunc(t * palette height), palette height - 1)`. The arctangent is within one unit
--- in the last place of the exact one and the same on every target.
---@param image tessaro.Image|tessaro.Buffer The image that is drawn on.
---@param palette tessaro.Image|tessaro.Buffer The colours.
---@param x0 integer The first corner or end.
---@param y0 integer The first corner or end.
---@param x1 integer The other corner or end.
---@param y1 integer The other corner or end.
---@return integer 0: Done, also when nothing lies inside the image.
---  1: The palette is smaller than 2 x 2.
function functions.BBIDrawPolaCircle(image, palette, x0, y0, x1, y1)
  return library.BBIDrawPolaCircle(
    (check.image("image", image, true)),
    (check.image("palette", palette, false)),
    check.int32_t("x0", x0),
    check.int32_t("y0", y0),
    check.int32_t("x1", x1),
    check.int32_t("y1", y1))
end

--- Tells the level of the processor, found when the library was loaded.
---@return integer The level: no result of another function depends on it.
function functions.GetCpuID()
  return library.GetCpuID()
end

--- Returns its argument.
---
--- Kept for hosts that choose wide code paths with it; the library chooses by itself, and no result depends
--- on
--- it.
---@param flag integer Any number.
---@return integer `flag`.
function functions.MMX(flag)
  return library.MMX(check.int32_t("flag", flag))
end

--- Returns its argument: lets a host see that the library is there.
---@param x integer Any number.
---@return integer `x`.
function functions.BBI(x)
  return library.BBI(check.int32_t("x", x))
end

--- Returns its argument: lets a host see that the library is there.
---@param x integer Any number.
---@return integer `x`.
function functions.wave(x)
  return library.wave(check.int32_t("x", x))
end

--- Shifts right and fills with zeros.
---@param value integer The number that is shifted or stored.
---@param count integer By how many bits; only its low five bits count, so that 33 shifts by 1.
---@return integer `value >> (count & 31)`, unsigned.
function functions.SHR(value, count)
  return library.SHR(check.uint32_t("value", value), check.uint32_t("count", count))
end

--- Shifts right and fills with the sign.
---@param value integer The number that is shifted or stored.
---@param count integer By how many bits; only its low five bits count, so that 33 shifts by 1.
---@return integer `value >> (count & 31)`, signed: -8 by 1 is -4, -1 by anything -1.
function functions.SAR(value, count)
  return library.SAR(check.int32_t("value", value), check.uint32_t("count", count))
end

--- Shifts left.
---@param value integer The number that is shifted or stored.
---@param count integer By how many bits; only its low five bits count, so that 33 shifts by 1.
---@return integer The low 32 bits of `value << (count & 31)`.
function functions.SHL(value, count)
  return library.SHL(check.uint32_t("value", value), check.uint32_t("count", count))
end

--- Reads the 16-bit word at `base + 2 * index`.
---
--- The result is 16 bits wide: a host that takes it for 32 finds undefined bits in the upper half.
---@param base tessaro.Buffer Where index 0 lies.
---@param index integer Which word, counted from `base`; may be negative.
---@return integer The word.
function functions.GetWORD(base, index)
  return library.GetWORD(check.word("base", base, index, 2, false), check.int32_t("index", index))
end

--- Reads the 16-bit word at `base + 2 * index`.
---
--- The result is 16 bits wide: a host that takes it for 32 finds undefined bits in the upper half.
---@param base tessaro.Buffer Where index 0 lies.
---@param index integer Which word, counted from `base`; may be negative.
---@return integer The word.
function functions.GetInt(base, index)
  return library.GetInt(check.word("base", base, index, 2, false), check.int32_t("index", index))
end

--- Stores the low 16 bits of a number at `base + 2 * index`.
---@param base tessaro.Buffer Where index 0 lies.
---@param index integer Which word, counted from `base`; may be negative.
---@param value integer The number that is shifted or stored.
---@return integer What was stored; 16 bits wide, as with GetWORD.
function functions.SetWORD(base, index, value)
  return library.SetWORD(
    check.word("base", base, index, 2, true),
    check.int32_t("index", index),
    check.uint32_t("value", value))
end

--- Stores the low 16 bits of a number at `base + 2 * index`.
---@param base tessaro.Buffer Where index 0 lies.
---@param index integer Which word, counted from `base`; may be negative.
---@param value integer The number that is shifted or stored.
---@return integer What was stored; 16 bits wide, as with GetWORD.
function functions.SetInt(base, index, value)
  return library.SetInt(
    check.word("base", base, index, 2, true),
    check.int32_t("index", index),
    check.uint32_t("value", value))
end

--- Reads the 32-bit word at `base + 4 * index`.
---@param base tessaro.Buffer Where index 0 lies.
---@param index integer Which word, counted from `base`; may be negative.
---@return integer The word.
function functions.GetDWORD(base, index)
  return library.GetDWORD(check.word("base", base, index, 4, false), check.int32_t("index", index))
end

--- Reads the 32-bit word at `base + 4 * index`.
---@param base tessaro.Buffer Where index 0 lies.
---@param index integer Which word, counted from `base`; may be negative.
---@return integer The word.
function functions.GetLong(base, index)
  return library.GetLong(check.word("base", base, index, 4, false), check.int32_t("index", index))
end

--- Stores a number at `base + 4 * index`.
---@param base tessaro.Buffer Where index 0 lies.
---@param index integer Which word, counted from `base`; may be negative.
---@param value integer The number that is shifted or stored.
---@return integer `value`.
function functions.SetDWORD(base, index, value)
  return library.SetDWORD(
    check.word("base", base, index, 4, true),
    check.int32_t("index", index),
    check.uint32_t("value", value))
end

--- Stores a number at `base + 4 * index`.
---@param base tessaro.Buffer Where index 0 lies.
---@param index integer Which word, counted from `base`; may be negative.
---@param value integer The number that is shifted or stored.
---@return integer `value`.
function functions.SetLong(base, index, value)
  return library.SetLong(
    check.word("base", base, index, 4, true),
    check.int32_t("index", index),
    check.uint32_t("value", value))
end

--- Compares bytes.
---
--- The count may reach beyond the end of the memory if a difference lies before it: no page of 4096 bytes
--- behind that of the first difference is touched.
---@param a tessaro.Buffer The one. At least count bytes.
---@param b tessaro.Buffer The other. At least count bytes.
---@param count integer How many are compared; trusted up to the first difference.
---@return integer 0: They are equal, or `count` is below 1.
---  1: They differ.
function functions.dllComp(a, b, count)
  count = check.int32_t("count", count)
  return library.dllComp(check.memory("a", a, count, 0, false), check.memory("b", b, count, 0, false), count)
end

--- Exclusive-ors a block of words into another, despite the name: onto zeros it copies, applied twice it
--- undoes itself.
---
--- In each row `dst[i] ^= src[i]`, word after word; then both move on by `pitch` bytes. Rows or words below 1
--- do nothing.
---@param dst tessaro.Buffer The block that is changed, from the first word of its first row. At least
---  abs(pitch) * (rows - 1) + 4 * words bytes.
---@param src tessaro.Buffer The block that is read. At least abs(pitch) * (rows - 1) + 4 * words bytes.
---@param words integer 32-bit words in a row.
---@param rows integer Rows.
---@param pitch integer From the start of one row to that of the next, in both blocks; may be negative.
---@return integer 0: Always.
function functions.CopyMemoryEx(dst, src, words, rows, pitch)
  words = check.int32_t("words", words)
  rows = check.int32_t("rows", rows)
  pitch = check.int32_t("pitch", pitch)
  return library.CopyMemoryEx(
    check.memory("dst", dst, math.abs(pitch) * (rows - 1) + 4 * words, math.min(0, pitch * (rows - 1)), true),
    check.memory("src", src, math.abs(pitch) * (rows - 1) + 4 * words, math.min(0, pitch * (rows - 1)), false),
    words,
    rows,
    pitch)
end

--- Hashes a zero-terminated text, or the first 64 bytes of a longer one.
---
--- The value is the same on all targets and in all versions, so that it may be stored. In unsigned 32-bit
--- arithmetic:
---
--- ```
--- h1 = 0x22A83D, h2 = 0x1476E5
--- for each byte ch before the zero, at most 64:
---   h2 = h2 & 0x3FFFFF
---   h1 = (h1 & 0x3FFFFF) + (h2 >> 1) + ch + 520 * h2
---   h2 = h2 + ch + 162 * h1
--- result = (h1 << 16) ^ h2
--- ```
---@param text tessaro.Buffer The text; nothing behind its zero is read. At least 64 bytes.
---@return integer The hash; that of nothing is 0xA82976E5.
function functions.hash32A(text)
  return library.hash32A(check.text("text", text, 64))
end

--- Hashes bytes of a given number, by another function than `hash32A`.
---
--- Zero bytes are skipped, so that a 16-bit text of ASCII characters hashes like its 8-bit form. The value is
--- the same on all targets and in all versions. In unsigned 32-bit arithmetic:
---
--- ```
--- h1 = 0x12A83D, h2 = 0x1476E5
--- for each byte ch that is not 0:
---   h2 = h2 & 0x1FFFFF
---   h1 = (h1 & 0x1FFFFF) + (h2 >> 1) + ch + 520 * h2
---   h2 = h2 + ch + 38 * h1
--- result = (h1 << 16) ^ h2
--- ```
---@param bytes tessaro.Buffer What is hashed. At least length bytes.
---@param length integer How many bytes; below 1 there are none.
---@return integer The hash; that of nothing is 0xA82976E5.
function functions.hash32W(bytes, length)
  length = check.int32_t("length", length)
  return library.hash32W(check.memory("bytes", bytes, length, 0, false), length)
end

--- Mixes two colours, alpha included.
---@param colour0 integer The colour at factor 0.
---@param colour1 integer The colour at factor 1.
---@param factor number How much of `colour1`: negative, or not a number, counts as 0, above 1 as 1.
---@return integer Of each byte `(c0 * (256 - k) + c1 * k) >> 8` with `k = trunc(factor * 256)`.
function functions.dwColorBlend(colour0, colour1, factor)
  return library.dwColorBlend(
    check.uint32_t("colour0", colour0),
    check.uint32_t("colour1", colour1),
    check.real("factor", factor))
end

--- Calls a function of one argument, which follows C's convention.
---@param fn function|ffi.cdata* The function that is called.
---@param a integer Its arguments, each as wide as a pointer.
---@return integer What `fn` returns.
function functions.dllMethod1(fn, a)
  local fn_, fn_made = check.callback("fn", fn, "TessaroMethod1")
  local result = tonumber(library.dllMethod1(fn_, check.intptr_t("a", a)))
  check.release(fn_made, "TessaroMethod1")
  return result
end
jit.off(functions.dllMethod1)  -- compiled code cannot be called back

--- Calls a function of four arguments, which follows C's convention.
---@param fn function|ffi.cdata* The function that is called.
---@param a integer Its arguments, each as wide as a pointer.
---@param b integer Its arguments, each as wide as a pointer.
---@param c integer Its arguments, each as wide as a pointer.
---@param d integer Its arguments, each as wide as a pointer.
---@return integer What `fn` returns.
function functions.dllMethod4(fn, a, b, c, d)
  local fn_, fn_made = check.callback("fn", fn, "TessaroMethod4")
  local result = tonumber(library.dllMethod4(
    fn_,
    check.intptr_t("a", a),
    check.intptr_t("b", b),
    check.intptr_t("c", c),
    check.intptr_t("d", d)))
  check.release(fn_made, "TessaroMethod4")
  return result
end
jit.off(functions.dllMethod4)  -- compiled code cannot be called back

--- Calls a function of two arguments, which follows the library's own convention.
---@param fn function|ffi.cdata* The function that is called.
---@param a integer Its arguments, each as wide as a pointer.
---@param b integer Its arguments, each as wide as a pointer.
---@return integer What `fn` returns.
function functions.StdCallBack(fn, a, b)
  local fn_, fn_made = check.callback("fn", fn, "TessaroCallback2")
  local result = tonumber(library.StdCallBack(fn_, check.intptr_t("a", a), check.intptr_t("b", b)))
  check.release(fn_made, "TessaroCallback2")
  return result
end
jit.off(functions.StdCallBack)  -- compiled code cannot be called back

--- Draws a random number below a limit.
---
--- The generator is the Mersenne Twister MT19937 of M. Matsumoto and T. Nishimura (1998) with the seeding of
--- its revision of October 1999 (each word joins the high halves of two steps of `s = 69069 * s + 1`), seeded
--- with the milliseconds since the system started when the library is loaded. It has one state for the
--- process
--- and no lock: of two threads that draw at the same moment both may get the same number, and a host that
--- minds locks for itself.
---@param n integer The limit, unsigned. 0 divides by zero and faults.
---@return integer The next output modulo `n`; each call draws one, also with 1.
function functions.GetRandom(n)
  n = check.within("n", check.uint32_t("n", n), 1, nil)
  return library.GetRandom(n)
end

--- Runs a function in a thread of its own, again and again, and returns when that thread has ended.
---
--- The call blocks, yielding in a loop, so `ThreadKill` has to come from another thread. The function runs at
--- least once unless `ThreadKill` came before the thread did. Two threads must not call `ThreadBegin` at the
--- same moment.
---@param fn function|ffi.cdata* What the thread calls.
---@return integer 0: The thread has ended, or the system could not make one.
---  1: There is a worker already; told at once. One that ended in another way than by `ThreadKill`, its
---  function having left by `ExitThread` or `pthread_exit`, still counts until `ThreadKill`.
function functions.ThreadBegin(fn)
  local fn_, fn_made = check.callback("fn", fn, "TessaroWorker")
  local result = library.ThreadBegin(fn_)
  check.release(fn_made, "TessaroWorker")
  return result
end
jit.off(functions.ThreadBegin)  -- compiled code cannot be called back

--- Stops the worker after its current call, and waits until it has ended, without a time limit.
---
--- Then `ThreadBegin` may be called again. Called from within the worker's function it waits for ever. Two
--- threads must not call it at the same moment.
---@return integer 0: The worker has ended.
---  1: There is no worker.
function functions.ThreadKill()
  return library.ThreadKill()
end

--- Offers the messages of a window to a function first, by giving the window a procedure of the library's.
---
--- Procedures are read, set and called by the system's ANSI functions (`GetWindowLongPtrA` and its like), so
--- that texts in messages are ANSI ones. A window that is hooked a second time gets a second entry whose
--- previous procedure is the library's own, while its messages find the first: unhook it before hooking it
--- again.
---@param window ffi.cdata*? A window, an `HWND`.
---@param hook function|ffi.cdata* What sees the messages.
---@param value integer A number that `hook` is given with each message.
---@return integer 0: The window is hooked.
---  1: The table is full, or the window has no procedure that can be read. So it is always where there
---  are no such windows: everywhere but on Windows.
function functions.WindowProcLoad(window, hook, value)
  local hook_, hook_made = check.callback("hook", hook, "TessaroHook")
  local result = library.WindowProcLoad(window, hook_, check.intptr_t("value", value))
  check.release(hook_made, "TessaroHook")
  return result
end
jit.off(functions.WindowProcLoad)  -- compiled code cannot be called back

--- Gives a window its previous procedure back.
---@param window ffi.cdata*? A window, an `HWND`.
---@return integer 0: The window is unhooked.
---  1: The window is not hooked.
function functions.WindowProcUnload(window)
  return library.WindowProcUnload(window)
end

--- A tone curve for each channel: row 0 for every pixel, columns from s.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer What is recoloured, or selects the row.
---@param map tessaro.Image|tessaro.Buffer At least 256 pixels wide, of which the first 256 columns count,
---  and one row high.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in the images that are read.
---@param sy integer Where the rectangle begins in the images that are read.
---@return integer 0: Done.
---  1: Clipping left nothing, or the map is too small.
function functions.BBIMapUC(dst, src, map, dx, dy, cx, cy, sx, sy)
  return library.BBIMapUC(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    (check.image("map", map, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- Row by the alpha of s, with the factor `(float)((H - 1) * 0.003921569f)`; columns from s.
---
--- The constant is a little above 1 / 255. With 256 rows the row is the alpha.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer What is recoloured, or selects the row.
---@param map tessaro.Image|tessaro.Buffer At least 256 pixels wide, of which the first 256 columns count,
---  and one row high.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in the images that are read.
---@param sy integer Where the rectangle begins in the images that are read.
---@return integer 0: Done.
---  1: Clipping left nothing, or the map is too small.
function functions.BBIMapUCVA(dst, src, map, dx, dy, cx, cy, sx, sy)
  return library.BBIMapUCVA(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    (check.image("map", map, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- The row of BBIMapUCVA, columns from d: s only selects the row.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer What is recoloured, or selects the row.
---@param map tessaro.Image|tessaro.Buffer At least 256 pixels wide, of which the first 256 columns count,
---  and one row high.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in the images that are read.
---@param sy integer Where the rectangle begins in the images that are read.
---@return integer 0: Done.
---  1: Clipping left nothing, or the map is too small.
function functions.BBIMapUDVA(dst, src, map, dx, dy, cx, cy, sx, sy)
  return library.BBIMapUDVA(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    (check.image("map", map, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- As BBIMapUCVA, but the alpha of d stays.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer What is recoloured, or selects the row.
---@param map tessaro.Image|tessaro.Buffer At least 256 x 256 pixels.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in the images that are read.
---@param sy integer Where the rectangle begins in the images that are read.
---@return integer 0: Done.
---  1: Clipping left nothing, or the map is too small.
function functions.BBIMapMCUCVA(dst, src, map, dx, dy, cx, cy, sx, sy)
  return library.BBIMapMCUCVA(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    (check.image("map", map, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- As BBIMapUDVA, but the alpha of d stays.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer What is recoloured, or selects the row.
---@param map tessaro.Image|tessaro.Buffer At least 256 x 256 pixels.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in the images that are read.
---@param sy integer Where the rectangle begins in the images that are read.
---@return integer 0: Done.
---  1: Clipping left nothing, or the map is too small.
function functions.BBIMapMCUDVA(dst, src, map, dx, dy, cx, cy, sx, sy)
  return library.BBIMapMCUDVA(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    (check.image("map", map, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- Row by blue + green + red of s, with the factor `(float)((H - 1) * 0.0013071896f)`; columns from s.
---
--- The constant is about 1 / 765.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer What is recoloured, or selects the row.
---@param map tessaro.Image|tessaro.Buffer At least 256 pixels wide, of which the first 256 columns count,
---  and one row high.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in the images that are read.
---@param sy integer Where the rectangle begins in the images that are read.
---@return integer 0: Done.
---  1: Clipping left nothing, or the map is too small.
function functions.BBIMapUCVC(dst, src, map, dx, dy, cx, cy, sx, sy)
  return library.BBIMapUCVC(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    (check.image("map", map, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- The row of BBIMapUCVC, columns from d.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer What is recoloured, or selects the row.
---@param map tessaro.Image|tessaro.Buffer At least 256 pixels wide, of which the first 256 columns count,
---  and one row high.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in the images that are read.
---@param sy integer Where the rectangle begins in the images that are read.
---@return integer 0: Done.
---  1: Clipping left nothing, or the map is too small.
function functions.BBIMapUDVC(dst, src, map, dx, dy, cx, cy, sx, sy)
  return library.BBIMapUDVC(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    (check.image("map", map, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- Row by the column in the clipped rectangle: in column i, `trunc(4 * i * (float)((H - 1) / (4.0 * (cx -
--- 1))))`; columns from s.
---
--- So the left edge has the first row of the map and the right edge the last, or the one before it, as the
--- rounding of the factor goes. One pixel wide, it has row 0.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer What is recoloured, or selects the row.
---@param map tessaro.Image|tessaro.Buffer At least 256 pixels wide, of which the first 256 columns count,
---  and one row high.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in the images that are read.
---@param sy integer Where the rectangle begins in the images that are read.
---@return integer 0: Done.
---  1: Clipping left nothing, or the map is too small.
function functions.BBIMapUCVX(dst, src, map, dx, dy, cx, cy, sx, sy)
  return library.BBIMapUCVX(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    (check.image("map", map, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- The same downward: in row i of the rectangle, `trunc(i * (float)((H - 1) / (cy - 1.0)))`; one pixel high,
--- row 0.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer What is recoloured, or selects the row.
---@param map tessaro.Image|tessaro.Buffer At least 256 pixels wide, of which the first 256 columns count,
---  and one row high.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in the images that are read.
---@param sy integer Where the rectangle begins in the images that are read.
---@return integer 0: Done.
---  1: Clipping left nothing, or the map is too small.
function functions.BBIMapUCVY(dst, src, map, dx, dy, cx, cy, sx, sy)
  return library.BBIMapUCVY(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    (check.image("map", map, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- A wipe or fade in which the incoming picture's own alpha is the stencil.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param outgoing tessaro.Image|tessaro.Buffer The picture that progress 0 shows.
---@param incoming tessaro.Image|tessaro.Buffer The picture that progress 1 shows.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in the images that are read.
---@param sy integer Where the rectangle begins in the images that are read.
---@param progress number How far the transition has gone; clamped, not a number counts as 0.
---@param softness number The width of the edge.
---@param unused integer Counts for nothing.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIStencilFlip(dst, outgoing, incoming, dx, dy, cx, cy, sx, sy, progress, softness, unused)
  return library.BBIStencilFlip(
    (check.image("dst", dst, true)),
    (check.image("outgoing", outgoing, false)),
    (check.image("incoming", incoming, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.real("progress", progress),
    check.real("softness", softness),
    check.int32_t("unused", unused))
end

--- A wipe or fade with a stencil of its own.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param outgoing tessaro.Image|tessaro.Buffer The picture that progress 0 shows.
---@param incoming tessaro.Image|tessaro.Buffer The picture that progress 1 shows.
---@param stencil tessaro.Image|tessaro.Buffer Its alpha decides.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in the images that are read.
---@param sy integer Where the rectangle begins in the images that are read.
---@param progress number How far the transition has gone; clamped, not a number counts as 0.
---@param softness number The width of the edge.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIStencilFlipLE(dst, outgoing, incoming, stencil, dx, dy, cx, cy, sx, sy, progress, softness)
  return library.BBIStencilFlipLE(
    (check.image("dst", dst, true)),
    (check.image("outgoing", outgoing, false)),
    (check.image("incoming", incoming, false)),
    (check.image("stencil", stencil, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.real("progress", progress),
    check.real("softness", softness))
end

--- As BBIStencilFlipLE, with the two pictures in the other order.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param incoming tessaro.Image|tessaro.Buffer The picture that progress 1 shows.
---@param outgoing tessaro.Image|tessaro.Buffer The picture that progress 0 shows.
---@param stencil tessaro.Image|tessaro.Buffer Its alpha decides.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in the images that are read.
---@param sy integer Where the rectangle begins in the images that are read.
---@param progress number How far the transition has gone; clamped, not a number counts as 0.
---@param softness number The width of the edge.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIStencilFlipLEFix(dst, incoming, outgoing, stencil, dx, dy, cx, cy, sx, sy, progress, softness)
  return library.BBIStencilFlipLEFix(
    (check.image("dst", dst, true)),
    (check.image("incoming", incoming, false)),
    (check.image("outgoing", outgoing, false)),
    (check.image("stencil", stencil, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.real("progress", progress),
    check.real("softness", softness))
end

--- Shifts colours up or down where the stencil, the alpha of `src`, is.
---
--- d becomes mix(d, T, w): the colours of T are `min(max(d + 2 * c - 255, 0), 255)` with c the byte of
--- `colour`, its alpha is 0. So 128 adds 1, 127 takes 1, 255 adds 255, 0 takes 255; and the alpha of `dst`
--- falls to 0 where the stencil is opaque. w is `trunc(a * opacity * 0.003921569f * 256)` for a stencil of a,
--- products from left to right.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The stencil.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in the images that are read.
---@param sy integer Where the rectangle begins in the images that are read.
---@param opacity number Clamped; not a number counts as 0.
---@param colour integer The shift; its alpha counts for nothing.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIStencilAddsigned(dst, src, dx, dy, cx, cy, sx, sy, opacity, colour)
  return library.BBIStencilAddsigned(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.real("opacity", opacity),
    check.uint32_t("colour", colour))
end

--- Copies: `s`.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBlt(dst, src, dx, dy, cx, cy, sx, sy)
  return library.BBIBlt(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- Fills with a colour, all bits of it or some: `((d ^ invert_bits) & mask) | (colour & ~mask)`.
---
--- A mask of 0 fills; one of 0xFFFFFFFF only inverts.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param mask integer Bits that the image keeps.
---@param invert_bits integer Bits that are inverted first; those that `mask` has not set do not show.
---@param colour integer A colour.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBltColor(dst, dx, dy, cx, cy, mask, invert_bits, colour)
  return library.BBIBltColor(
    (check.image("dst", dst, true)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.uint32_t("mask", mask),
    check.uint32_t("invert_bits", invert_bits),
    check.uint32_t("colour", colour))
end

--- Mixes a colour into a rectangle, with the weight `trunc(factor * 256)`.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param colour integer A colour.
---@param factor number How much of the colour: 1 and above fill.
---@return integer 0: Done.
---  1: Clipping left nothing, or the factor is negative or not a number.
function functions.BBIBltColorBlend(dst, dx, dy, cx, cy, colour, factor)
  return library.BBIBltColorBlend(
    (check.image("dst", dst, true)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.uint32_t("colour", colour),
    check.real("factor", factor))
end

--- Combines alphas and keeps the colours of `dst`.
---
--- With `da` the alpha of `d` and `a` that of `s`, these act if their flags are on, in this order, the
--- reverse
--- of that of the arguments:
---
--- 1. `subtract_from_dest`: `a = da - a`
--- 2. `invert`: `a = 255 - a`
--- 3. `min_with_dest`: `a = min(a, da)`
--- 4. `max_with_dest`: `a = max(a, da)`
---
--- The low eight bits of `a` are stored: what lies outside 0 to 255 wraps (10 - 20 gives 246). With the last
--- two on `da` stays.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@param max_with_dest integer Step 4.
---@param min_with_dest integer Step 3.
---@param invert integer Step 2.
---@param subtract_from_dest integer Step 1.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBltAlpha(dst, src, dx, dy, cx, cy, sx, sy, max_with_dest, min_with_dest, invert, subtract_from_dest)
  return library.BBIBltAlpha(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.int32_t("max_with_dest", max_with_dest),
    check.int32_t("min_with_dest", min_with_dest),
    check.int32_t("invert", invert),
    check.int32_t("subtract_from_dest", subtract_from_dest))
end

--- Adds: `min(d + s, 255)`.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBltAdd(dst, src, dx, dy, cx, cy, sx, sy)
  return library.BBIBltAdd(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- Multiplies: `(d * s + 255) >> 8`.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBltMul(dst, src, dx, dy, cx, cy, sx, sy)
  return library.BBIBltMul(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- Subtracts: `max(d - s, 0)`.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBltSub(dst, src, dx, dy, cx, cy, sx, sy)
  return library.BBIBltSub(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- Takes the difference: `abs(d - s)`, despite the name no exclusive-or.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBltXor(dst, src, dx, dy, cx, cy, sx, sy)
  return library.BBIBltXor(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- Takes the signed difference: `(d - s + 128) & 255`, which `BBIBltXor3` with the same source undoes.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBltXor2(dst, src, dx, dy, cx, cy, sx, sy)
  return library.BBIBltXor2(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- Adds a signed difference: `(d + s - 128) & 255`.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBltXor3(dst, src, dx, dy, cx, cy, sx, sy)
  return library.BBIBltXor3(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- Copies inverted: `255 - s`, alpha too.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBltNot(dst, src, dx, dy, cx, cy, sx, sy)
  return library.BBIBltNot(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- Takes the darker: `min(d, s)`.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBltMin(dst, src, dx, dy, cx, cy, sx, sy)
  return library.BBIBltMin(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- Takes the brighter: `max(d, s)`.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBltMax(dst, src, dx, dy, cx, cy, sx, sy)
  return library.BBIBltMax(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- Copies all pixels but those that equal a key.
---
--- The key is the word at column 0, row 0 of the source image, wherever the rectangle lies, read once before
--- the first pixel is written. Whole words are compared, alpha included.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBltKeying(dst, src, dx, dy, cx, cy, sx, sy)
  return library.BBIBltKeying(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- Cross-fades: a mix with the weight `level`, of all pixels or of all but those that equal a key.
---
--- At 255 and above it is `BBIBlt`, with `keyed` on `BBIBltKeying`. At 0 and below nothing changes; the
--- result
--- is 0, or 1 where clipping leaves nothing.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@param keyed integer Whether pixels that equal the key of `BBIBltKeying` are left out.
---@param level integer How much of the source.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBltKeyingFX(dst, src, dx, dy, cx, cy, sx, sy, keyed, level)
  return library.BBIBltKeyingFX(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.int32_t("keyed", keyed),
    check.int32_t("level", level))
end

--- Mixes a source in by its own alpha `a`, in one of two ways.
---
--- - `whole` off: 0 keeps `d`, 255 gives `s`, between them `(s * a + d * (255 - a)) >> 8`, which darkens a
---   little.
--- - `whole` on: a mix with the weight `a * 256 / 255`, which does not; a byte may be greater by one or two.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@param whole integer Whether weights add up to 256.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBltBlend(dst, src, dx, dy, cx, cy, sx, sy, whole)
  return library.BBIBltBlend(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.int32_t("whole", whole))
end

--- Mixes half and half: `(s >> 1) + (d >> 1)`, where two odd bytes lose one.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBltHalfBlend(dst, src, dx, dy, cx, cy, sx, sy)
  return library.BBIBltHalfBlend(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- Shows alpha as grey: all four bytes become the alpha of `s`.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBltShiftAlpha(dst, src, dx, dy, cx, cy, sx, sy)
  return library.BBIBltShiftAlpha(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- Marks pixels: where the whole word `s` is above 128, `(~d & 0x007FC0C0) | 0x00800000`, elsewhere `d`.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBltShiftBlock(dst, src, dx, dy, cx, cy, sx, sy)
  return library.BBIBltShiftBlock(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- Fills an image from a bottom-up bitmap of one bit a pixel.
---
--- Row y of the image (0 is the top) comes from `bits + (height - 1 - y) * stride`, here and in the three
--- functions below. An image without pixels is left alone. Each row starts with a new byte, the first of
--- eight
--- pixels in its highest bit; a byte is read once for its eight pixels.
---@param image tessaro.Image|tessaro.Buffer The image that is filled.
---@param bits tessaro.Buffer The bottom row. At least abs(stride) * (image.height - 1) +
---  ceil_div(image.width, 8) bytes.
---@param palette tessaro.Buffer The colours of a 0 and a 1. At least 2 words.
---@param stride integer From the start of a row to that of the row above it; may be 0 or negative.
---@return integer 0: Always.
function functions.BBIBltTo32from1(image, bits, palette, stride)
  local image_, image_width, image_height = check.image("image", image, true)
  stride = check.int32_t("stride", stride)
  return library.BBIBltTo32from1(
    image_,
    check.memory("bits", bits, math.abs(stride) * (image_height - 1) + check.ceil_div(image_width, 8), math.min(0, stride * (image_height - 1)), false),
    check.memory("palette", palette, 8, 0, false),
    stride)
end

--- Fills an image from a bottom-up bitmap of one byte a pixel, the number of a colour.
---@param image tessaro.Image|tessaro.Buffer The image that is filled.
---@param bits tessaro.Buffer The bottom row. At least abs(stride) * (image.height - 1) + image.width
---  bytes.
---@param palette tessaro.Buffer The colours. At least 256 words.
---@param stride integer From the start of a row to that of the row above it; may be 0 or negative.
---@return integer 0: Always.
function functions.BBIBltTo32from8(image, bits, palette, stride)
  local image_, image_width, image_height = check.image("image", image, true)
  stride = check.int32_t("stride", stride)
  return library.BBIBltTo32from8(
    image_,
    check.memory("bits", bits, math.abs(stride) * (image_height - 1) + image_width, math.min(0, stride * (image_height - 1)), false),
    check.memory("palette", palette, 1024, 0, false),
    stride)
end

--- Fills an image from a bottom-up bitmap of blue, green and red; alpha becomes 0.
---@param image tessaro.Image|tessaro.Buffer The image that is filled.
---@param bits tessaro.Buffer The bottom row. At least abs(stride) * (image.height - 1) + 3 * image.width
---  bytes.
---@param stride integer From the start of a row to that of the row above it; may be 0 or negative.
---@return integer 0: Always.
function functions.BBIBltTo32from24(image, bits, stride)
  local image_, image_width, image_height = check.image("image", image, true)
  stride = check.int32_t("stride", stride)
  return library.BBIBltTo32from24(
    image_,
    check.memory("bits", bits, math.abs(stride) * (image_height - 1) + 3 * image_width, math.min(0, stride * (image_height - 1)), false),
    stride)
end

--- Fills an image from a bottom-up bitmap of whole words, alpha included.
---@param image tessaro.Image|tessaro.Buffer The image that is filled.
---@param bits tessaro.Buffer The bottom row. At least abs(stride) * (image.height - 1) + 4 * image.width
---  bytes.
---@param stride integer From the start of a row to that of the row above it; may be 0 or negative.
---@return integer 0: Always.
function functions.BBIBltTo32from32(image, bits, stride)
  local image_, image_width, image_height = check.image("image", image, true)
  stride = check.int32_t("stride", stride)
  return library.BBIBltTo32from32(
    image_,
    check.memory("bits", bits, math.abs(stride) * (image_height - 1) + 4 * image_width, math.min(0, stride * (image_height - 1)), false),
    stride)
end

--- Unpacks pixels of a format.
---@param dst tessaro.Buffer The pixels. At least count words.
---@param src tessaro.Buffer The packed pixels. At least count * bytes_of(format) bytes.
---@param count integer How many.
---@param format integer How the pixels are packed.
---@return integer 0: Always; an unknown format does nothing.
function functions.BBIBltToBBIGet(dst, src, count, format)
  count = check.int32_t("count", count)
  format = check.int32_t("format", format)
  return library.BBIBltToBBIGet(
    check.memory("dst", dst, 4 * count, 0, true),
    check.memory("src", src, count * check.bytes_of(format), 0, false),
    count,
    format)
end

--- Packs pixels as 888.
---@param dst tessaro.Buffer The packed pixels. At least 3 * count bytes.
---@param src tessaro.Buffer The pixels. At least count words.
---@param count integer How many.
---@return integer 0: Always.
function functions.BBIBltTo24As888(dst, src, count)
  count = check.int32_t("count", count)
  return library.BBIBltTo24As888(
    check.memory("dst", dst, 3 * count, 0, true),
    check.memory("src", src, 4 * count, 0, false),
    count)
end

--- Packs pixels as 4444, alpha included.
---@param dst tessaro.Buffer The packed pixels. At least count halfwords.
---@param src tessaro.Buffer The pixels. At least count words.
---@param count integer How many.
---@return integer 0: Always.
function functions.BBIBltTo16As444(dst, src, count)
  count = check.int32_t("count", count)
  return library.BBIBltTo16As444(
    check.memory("dst", dst, 2 * count, 0, true),
    check.memory("src", src, 4 * count, 0, false),
    count)
end

--- Packs pixels as 565.
---@param dst tessaro.Buffer The packed pixels. At least count halfwords.
---@param src tessaro.Buffer The pixels. At least count words.
---@param count integer How many.
---@return integer 0: Always.
function functions.BBIBltTo16As565(dst, src, count)
  count = check.int32_t("count", count)
  return library.BBIBltTo16As565(
    check.memory("dst", dst, 2 * count, 0, true),
    check.memory("src", src, 4 * count, 0, false),
    count)
end

--- Packs pixels as 555.
---@param dst tessaro.Buffer The packed pixels. At least count halfwords.
---@param src tessaro.Buffer The pixels. At least count words.
---@param count integer How many.
---@return integer 0: Always.
function functions.BBIBltTo16As555(dst, src, count)
  count = check.int32_t("count", count)
  return library.BBIBltTo16As555(
    check.memory("dst", dst, 2 * count, 0, true),
    check.memory("src", src, 4 * count, 0, false),
    count)
end

--- Packs pixels as 1555.
---@param dst tessaro.Buffer The packed pixels. At least count halfwords.
---@param src tessaro.Buffer The pixels. At least count words.
---@param count integer How many.
---@return integer 0: Always.
function functions.BBIBltTo16As1555(dst, src, count)
  count = check.int32_t("count", count)
  return library.BBIBltTo16As1555(
    check.memory("dst", dst, 2 * count, 0, true),
    check.memory("src", src, 4 * count, 0, false),
    count)
end

--- Takes the blue byte of each pixel: the grey of a grey picture; no luminance is formed.
---@param dst tessaro.Buffer A byte a pixel. At least count bytes.
---@param src tessaro.Buffer The pixels. At least count words.
---@param count integer How many.
---@return integer 0: Always.
function functions.BBIBltTo8AsGray(dst, src, count)
  count = check.int32_t("count", count)
  return library.BBIBltTo8AsGray(
    check.memory("dst", dst, count, 0, true),
    check.memory("src", src, 4 * count, 0, false),
    count)
end

--- Takes the alpha of each pixel.
---@param dst tessaro.Buffer A byte a pixel. At least count bytes.
---@param src tessaro.Buffer The pixels. At least count words.
---@param count integer How many.
---@return integer 0: Always.
function functions.BBIBltTo8AsAlpha(dst, src, count)
  count = check.int32_t("count", count)
  return library.BBIBltTo8AsAlpha(
    check.memory("dst", dst, count, 0, true),
    check.memory("src", src, 4 * count, 0, false),
    count)
end

--- Packs one bit a pixel, 1 where the blue byte is at least 128.
---
--- A byte is written when its pixels have been read, the first of eight in its highest bit; bits of the last
--- byte that belong to no pixel are 0.
---@param dst tessaro.Buffer The bits. At least ceil_div(count, 8) bytes.
---@param src tessaro.Buffer The pixels. At least count words.
---@param count integer How many.
---@return integer 0: Always.
function functions.BBIBltTo1(dst, src, count)
  count = check.int32_t("count", count)
  return library.BBIBltTo1(
    check.memory("dst", dst, check.ceil_div(count, 8), 0, true),
    check.memory("src", src, 4 * count, 0, false),
    count)
end

--- Mixes pixels with a colour and packs them: factor 1 keeps the pixel, 0 gives the colour.
---@param dst tessaro.Buffer The packed pixels. At least count * bytes_of(format) bytes.
---@param src tessaro.Buffer The pixels. At least count words.
---@param count integer How many.
---@param format integer How the pixels are packed.
---@param colour integer What is mixed in where the factor is below 1.
---@param factor number The weight of the pixel: negative, or not a number, counts as 0, above 1 as 1.
---@return integer 0: Always; an unknown format does nothing.
function functions.BBIBltToX(dst, src, count, format, colour, factor)
  count = check.int32_t("count", count)
  format = check.int32_t("format", format)
  return library.BBIBltToX(
    check.memory("dst", dst, count * check.bytes_of(format), 0, true),
    check.memory("src", src, 4 * count, 0, false),
    count,
    format,
    check.uint32_t("colour", colour),
    check.real("factor", factor))
end

--- Mixes two runs of pixels and packs the result: factor 0 gives those of `a`, 1 those of `b`.
---@param dst tessaro.Buffer The packed pixels. At least count * bytes_of(format) bytes.
---@param a tessaro.Buffer The pixels with the weight `256 - k`. At least count words.
---@param b tessaro.Buffer The pixels with the weight `k`. At least count words.
---@param count integer How many.
---@param format integer How the pixels are packed.
---@param factor number How much of `b`: negative, or not a number, counts as 0, above 1 as 1.
---@return integer 0: Done.
---  1: The format is unknown, whatever the count.
function functions.BBIBltToXF(dst, a, b, count, format, factor)
  count = check.int32_t("count", count)
  format = check.int32_t("format", format)
  return library.BBIBltToXF(
    check.memory("dst", dst, count * check.bytes_of(format), 0, true),
    check.memory("a", a, 4 * count, 0, false),
    check.memory("b", b, 4 * count, 0, false),
    count,
    format,
    check.real("factor", factor))
end

--- Changes saturation, looks levels up, mixes with a colour and packs.
---
--- Each pixel in this order, its alpha untouched by the first two steps:
---
--- 1. Unless the saturation is exactly 1: with `m = trunc(saturation * 1024)` and `t = (1024 - m) / 3`,
---   truncated toward zero, each colour byte c becomes `(c * m >> 10) + ((B + G + R) * t >> 10)`, kept within
---   0 to 255. At 0 that is a grey a little below the mean.
--- 2. With `use_table` on: B, G and R become `table[B]`, `table[256 + G]` and `table[512 + R]`.
--- 3. The mix with the colour, and the packing, as by `BBIBltToX`.
---@param dst tessaro.Buffer The packed pixels. At least count * bytes_of(format) bytes.
---@param src tessaro.Buffer The pixels. At least count words.
---@param count integer How many.
---@param format integer How the pixels are packed.
---@param colour integer What is mixed in where the factor is below 1.
---@param factor number The weight of the pixel: negative, or not a number, counts as 0, above 1 as 1.
---@param saturation number Negative, or not a number, counts as 0, above 256 as 256.
---@param use_table integer Whether levels are looked up.
---@param table tessaro.Buffer Tables for blue, green and red, 256 bytes each; only read with `use_table`
---  on. At least 768 bytes.
---@return integer 0: Done.
---  1: The format is unknown, whatever the count.
function functions.BBIBltToF(dst, src, count, format, colour, factor, saturation, use_table, table)
  count = check.int32_t("count", count)
  format = check.int32_t("format", format)
  return library.BBIBltToF(
    check.memory("dst", dst, count * check.bytes_of(format), 0, true),
    check.memory("src", src, 4 * count, 0, false),
    count,
    format,
    check.uint32_t("colour", colour),
    check.real("factor", factor),
    check.real("saturation", saturation),
    check.int32_t("use_table", use_table),
    check.memory("table", table, 768, 0, false))
end

--- Compares two images, or tests the first.
---
--- Both have to be images in every mode: their sizes are compared first, also where only the pixels of `a`
--- are
--- read.
---@param a tessaro.Image|tessaro.Buffer The images that are compared.
---@param b tessaro.Image|tessaro.Buffer The images that are compared.
---@param mode integer What is tested.
---@return integer 0: The test holds for every pixel, or the images have no rows.
---  1: It fails for one, or the sizes differ.
---  2: The mode is unknown, and the images are of one size and have rows.
function functions.BBICompare(a, b, mode)
  return library.BBICompare(
    (check.image("a", a, false)),
    (check.image("b", b, false)),
    check.int32_t("mode", mode))
end

--- Counts pixels that differ, but not by much in every byte.
---
--- With `p` and `q` the pixels of both images under the mask, a pixel counts if `p` is not `q` and at least
--- one of the four bytes differs by no more than the tolerance. Bytes that are equal or masked away differ by
--- 0: so with a byte masked away all pixels that differ count; pixels that differ by more in all four bytes
--- do
--- not.
---@param a tessaro.Image|tessaro.Buffer The images that are compared.
---@param b tessaro.Image|tessaro.Buffer The images that are compared.
---@param mask integer The bits that are compared.
---@param tolerance integer Kept within these limits.
---@return integer The number of such pixels; 0 for images without pixels.
---  -1: The sizes differ.
function functions.BBICompareAny(a, b, mask, tolerance)
  return library.BBICompareAny(
    (check.image("a", a, false)),
    (check.image("b", b, false)),
    check.uint32_t("mask", mask),
    check.int32_t("tolerance", tolerance))
end

--- Counts the different colours of an image, alpha aside.
---@param image tessaro.Image|tessaro.Buffer The image that is read.
---@param reserved integer Has to be 0.
---@return integer The number of colours; 0 also if `reserved` is not 0, or if working memory (at most 2
---  MiB) cannot be had.
function functions.BBIColorCount(image, reserved)
  return library.BBIColorCount((check.image("image", image, false)), check.int32_t("reserved", reserved))
end

--- Collects the colours of an image into a palette, and replaces each pixel's alpha by the number of its
--- colour there.
---
--- Colours are collected in order of appearance, with alpha 0, until the palette is full; pixels whose colour
--- found no room get an alpha of 0. Entries of the palette that no colour takes are left alone.
---@param image tessaro.Image|tessaro.Buffer The image that is changed.
---@param palette tessaro.Buffer The colours. At least max words.
---@param max integer The room in the palette; otherwise nothing is done and 0 returned.
---@return integer The colours collected, plus the pixels whose colour found no room: above `max` the
---  palette was too small. 0 for an image without pixels.
function functions.BBIColorPalette(image, palette, max)
  max = check.int32_t("max", max)
  return library.BBIColorPalette(
    (check.image("image", image, true)),
    check.memory("palette", palette, 4 * max, 0, true),
    max)
end

--- Finds the smallest rectangle around all content, that is pixels with `(pixel & mask) != key`.
---
--- It is told by its first column and row and its size (`BBIPaint` tells last column and row); without
--- content
--- it is 0, 0, 1, 1.
---@param image tessaro.Image|tessaro.Buffer The image that is read.
---@param reserved integer Has to be 0.
---@param mask integer The bits of a pixel that are compared. Bits of `key` that it has not set make every
---  pixel content.
---@param key integer What is no content.
---@param left tessaro.Buffer The first column. At least 1 words.
---@param top tessaro.Buffer The first row. At least 1 words.
---@param cx tessaro.Buffer The number of columns. At least 1 words.
---@param cy tessaro.Buffer The number of rows. At least 1 words.
---@return integer 0: Done.
---  1: `reserved` is not 0.
function functions.BBITrim(image, reserved, mask, key, left, top, cx, cy)
  return library.BBITrim(
    (check.image("image", image, false)),
    check.int32_t("reserved", reserved),
    check.uint32_t("mask", mask),
    check.uint32_t("key", key),
    check.memory("left", left, 4, 0, true),
    check.memory("top", top, 4, 0, true),
    check.memory("cx", cx, 4, 0, true),
    check.memory("cy", cy, 4, 0, true))
end

--- Fills an image.
---@param image tessaro.Image|tessaro.Buffer The image that is changed.
---@param red integer The bytes of a colour; below 0 counts as 0, above 255 as 255.
---@param green integer The bytes of a colour; below 0 counts as 0, above 255 as 255.
---@param blue integer The bytes of a colour; below 0 counts as 0, above 255 as 255.
---@param alpha integer The bytes of a colour; below 0 counts as 0, above 255 as 255.
---@return integer 0: Done.
---  1: The image has no pixels.
function functions.BBIClear(image, red, green, blue, alpha)
  return library.BBIClear(
    (check.image("image", image, true)),
    check.int32_t("red", red),
    check.int32_t("green", green),
    check.int32_t("blue", blue),
    check.int32_t("alpha", alpha))
end

--- Fills an image and keeps its alpha.
---@param image tessaro.Image|tessaro.Buffer The image that is changed.
---@param red integer The bytes of a colour; below 0 counts as 0, above 255 as 255.
---@param green integer The bytes of a colour; below 0 counts as 0, above 255 as 255.
---@param blue integer The bytes of a colour; below 0 counts as 0, above 255 as 255.
---@return integer 0: Done.
---  1: The image has no pixels.
function functions.BBIClearRGB(image, red, green, blue)
  return library.BBIClearRGB(
    (check.image("image", image, true)),
    check.int32_t("red", red),
    check.int32_t("green", green),
    check.int32_t("blue", blue))
end

--- Fills some bits of an image: `(pixel & mask) | (colour & ~mask)`.
---@param image tessaro.Image|tessaro.Buffer The image that is changed.
---@param red integer The bytes of a colour; below 0 counts as 0, above 255 as 255.
---@param green integer The bytes of a colour; below 0 counts as 0, above 255 as 255.
---@param blue integer The bytes of a colour; below 0 counts as 0, above 255 as 255.
---@param alpha integer The bytes of a colour; below 0 counts as 0, above 255 as 255.
---@param mask integer The bits that the image keeps.
---@return integer 0: Done.
---  1: The image has no pixels.
function functions.BBIClearMask(image, red, green, blue, alpha, mask)
  return library.BBIClearMask(
    (check.image("image", image, true)),
    check.int32_t("red", red),
    check.int32_t("green", green),
    check.int32_t("blue", blue),
    check.int32_t("alpha", alpha),
    check.uint32_t("mask", mask))
end

--- Mirrors an image in place, left to right.
---@param image tessaro.Image|tessaro.Buffer The image that is changed.
---@return integer 0: Done.
---  1: The image has no pixels.
function functions.BBIMirror(image)
  return library.BBIMirror((check.image("image", image, true)))
end

--- Mirrors an image in place, top to bottom.
---@param image tessaro.Image|tessaro.Buffer The image that is changed.
---@return integer 0: Done.
---  1: The image has no pixels.
function functions.BBIVMirror(image)
  return library.BBIVMirror((check.image("image", image, true)))
end

--- Turns an image into another.
---
--- The two must not share pixels: what `dst` holds afterwards is undefined if they do.
---@param dst tessaro.Image|tessaro.Buffer The turned image, of the size of `src`, with width and height
---  exchanged for a quarter.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param mode integer Which turn.
---@return integer 0: Done; also, without anything done, for any other mode, whatever the sizes, and for
---  images without pixels whose sizes fit.
---  1: The sizes do not fit.
function functions.BBIRotation(dst, src, mode)
  return library.BBIRotation(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("mode", mode))
end

--- Makes a colour transparent and all others opaque.
---
--- Alpha becomes 0 for pixels of the key's colour and 255 for all others; alphas are not compared.
---@param image tessaro.Image|tessaro.Buffer The image that is changed.
---@param key integer The colour; its alpha does not count.
---@return integer 0: Done.
---  1: The image has no pixels.
function functions.BBIKeying(image, key)
  return library.BBIKeying((check.image("image", image, true)), check.uint32_t("key", key))
end

--- Gives transparent pixels the colour of their neighbours, so that the edges of a keyed picture stay clean
--- when it is scaled.
---
--- A pixel with alpha 0 gets the mean of blue, of green and of red, truncated, of those of its neighbours
--- left, right, above and below whose alpha is not 0; its alpha stays 0. Without such a neighbour it stays as
--- it is.
---@param image tessaro.Image|tessaro.Buffer The image that is changed.
---@return integer 0: Done.
---  1: The image has no pixels.
function functions.BBIKeyingFilter(image)
  return library.BBIKeyingFilter((check.image("image", image, true)))
end

--- Does nothing.
---@param a integer Not looked at.
---@param b integer Not looked at.
---@param c integer Not looked at.
---@return integer 0: Always.
function functions.BBIAntiAreas(a, b, c)
  return library.BBIAntiAreas(check.int32_t("a", a), check.int32_t("b", b), check.int32_t("c", c))
end

--- Fills an area: the pixel at a place and all that are connected to it through their four neighbours and
--- equal it in all 32 bits.
---
--- It tells the rectangle filled by its first and last column and row (`BBITrim` tells a size).
---@param image tessaro.Image|tessaro.Buffer The image that is changed.
---@param x integer The column of a pixel of the area.
---@param y integer Its row.
---@param colour integer What the area takes.
---@param left tessaro.Buffer The first column. At least 1 words.
---@param top tessaro.Buffer The first row. At least 1 words.
---@param right tessaro.Buffer The last column. At least 1 words.
---@param bottom tessaro.Buffer The last row. At least 1 words.
---@return integer 0: Done.
---  1: The place lies outside or has the colour already, or working memory cannot be had: at most `6 *
---  height * ((width + 1) / 2)` bytes, of which only what the fill needs is touched.
function functions.BBIPaint(image, x, y, colour, left, top, right, bottom)
  return library.BBIPaint(
    (check.image("image", image, true)),
    check.int32_t("x", x),
    check.int32_t("y", y),
    check.uint32_t("colour", colour),
    check.memory("left", left, 4, 0, true),
    check.memory("top", top, 4, 0, true),
    check.memory("right", right, 4, 0, true),
    check.memory("bottom", bottom, 4, 0, true))
end

--- Gives a source the brightness of what it covers.
---
--- With the brightness `(B + G + R + 1) / 3`, each colour becomes `s` plus the brightness of `d` less that of
--- `s`, kept within 0 to 255. The alpha of `d` stays.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBltTone(dst, src, dx, dy, cx, cy, sx, sy)
  return library.BBIBltTone(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- Mixes a source in the more, the closer its colour is to what it covers, compared at equal brightness.
---
--- With the brightness `(B + G + R) / 3`, `e = d - s` plus the brightness of `s` less that of `d` for each
--- colour, and `distance` the square root of the sum of the three squares of `e`, truncated, all four bytes
--- are mixed with the weight `trunc(256 - distance * factor)`, formed in double precision and kept within 0
--- to
--- 256; 0 if it is not a number.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@param factor number How fast the weight falls: at 1 it is 0 at a distance of 256. 0 and below copy.
---@return integer 0: Done.
---  1: Clipping left nothing.
function functions.BBIBltToneWB(dst, src, dx, dy, cx, cy, sx, sy, factor)
  return library.BBIBltToneWB(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.real("factor", factor))
end

--- Lays a source over a destination that may itself be partly transparent.
---
--- With `a` the alpha of `s` and `da` that of `d`, the first of these that applies:
---
--- 1. `a` is 0: `d` stays.
--- 2. `a` is 255, or `da` is 0: `s` replaces it, whatever the opacity.
--- 3. The colours are mixed with the weight `trunc(a * opacity * 0.003921569f * 256)`, formed in double
---   precision from the two floats (the constant is a little above 1 / 255); the alpha becomes
---   `da + (255 - da) * a / 255`.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Left column and top row of the rectangle in `dst`.
---@param dy integer Left column and top row of the rectangle in `dst`.
---@param cx integer Width and height of the rectangle.
---@param cy integer Width and height of the rectangle.
---@param sx integer Left column and top row of the rectangle in `src`.
---@param sy integer Left column and top row of the rectangle in `src`.
---@param opacity number Weakens the partly transparent pixels of the source; above 1 counts as 1.
---@return integer 0: Done.
---  1: Clipping left nothing, or the opacity is negative or not a number.
function functions.BBIBltTrueBlend(dst, src, dx, dy, cx, cy, sx, sy, opacity)
  return library.BBIBltTrueBlend(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.real("opacity", opacity))
end

--- Stretches the levels of each channel, blue by the bounds of red and red by those of blue.
---
--- The crossing does not show where the two have the same histogram.
---@param image tessaro.Image|tessaro.Buffer The image.
---@param threshold integer How many pixels at either end are given up; a negative one makes the bounds 0
---  and 255.
---@return integer 0: Done.
---  1: The image has no pixels.
function functions.BBIAutoLevelRGB(image, threshold)
  return library.BBIAutoLevelRGB((check.image("image", image, true)), check.int32_t("threshold", threshold))
end

--- Stretches the levels of each channel by the mean bounds of the two others.
---@param image tessaro.Image|tessaro.Buffer The image.
---@param threshold integer How many pixels at either end are given up; a negative one makes the bounds 0
---  and 255.
---@return integer 0: Done.
---  1: The image has no pixels.
function functions.BBIAutoLevelRGBRev(image, threshold)
  return library.BBIAutoLevelRGBRev(
    (check.image("image", image, true)),
    check.int32_t("threshold", threshold))
end

--- Stretches the levels of each channel by its own high bound and a low one that is a quarter of the others'
--- mean.
---@param image tessaro.Image|tessaro.Buffer The image.
---@param threshold integer How many pixels at either end are given up; a negative one makes the bounds 0
---  and 255.
---@return integer 0: Done.
---  1: The image has no pixels.
function functions.BBIAutoLevelRGBMul(image, threshold)
  return library.BBIAutoLevelRGBMul(
    (check.image("image", image, true)),
    check.int32_t("threshold", threshold))
end

--- Stretches the levels of all channels alike, which keeps their balance.
---
--- L and H are measured in one histogram of blue, green and red of every pixel: three counts a pixel, which
--- the threshold is compared with.
---@param image tessaro.Image|tessaro.Buffer The image.
---@param threshold integer How many pixels at either end are given up; a negative one makes the bounds 0
---  and 255.
---@return integer 0: Done.
---  1: The image has no pixels.
function functions.BBIAutoLevelWB(image, threshold)
  return library.BBIAutoLevelWB((check.image("image", image, true)), check.int32_t("threshold", threshold))
end

--- Stretches with one opacity: d = mix(d, s, constant weight), at opacity 1 a copy.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param dw integer The size of the rectangle in `dst`.
---@param dh integer The size of the rectangle in `dst`.
---@param sx integer Where the rectangle begins in `src`.
---@param sy integer Where the rectangle begins in `src`.
---@param sw integer The size of the rectangle in `src`.
---@param sh integer The size of the rectangle in `src`.
---@param opacity number Above 1 counts as 1; negative or not a number returns 1.
---@return integer 0: Done.
---  1: An argument is unusable, or clipping left nothing.
function functions.BBIExpandBlt(dst, src, dx, dy, dw, dh, sx, sy, sw, sh, opacity)
  return library.BBIExpandBlt(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("dw", dw),
    check.int32_t("dh", dh),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.int32_t("sw", sw),
    check.int32_t("sh", sh),
    check.real("opacity", opacity))
end

--- Stretches by the alpha of the source: d = mix(d, s, alpha weight of s).
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param dw integer The size of the rectangle in `dst`.
---@param dh integer The size of the rectangle in `dst`.
---@param sx integer Where the rectangle begins in `src`.
---@param sy integer Where the rectangle begins in `src`.
---@param sw integer The size of the rectangle in `src`.
---@param sh integer The size of the rectangle in `src`.
---@param opacity number Above 1 counts as 1; negative or not a number returns 1.
---@return integer 0: Done.
---  1: An argument is unusable, or clipping left nothing.
function functions.BBIExpandBlendBlt(dst, src, dx, dy, dw, dh, sx, sy, sw, sh, opacity)
  return library.BBIExpandBlendBlt(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("dw", dw),
    check.int32_t("dh", dh),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.int32_t("sw", sw),
    check.int32_t("sh", sh),
    check.real("opacity", opacity))
end

--- Replaces bits of each sample by a gradient between four corner colours, then mixes it in.
---
--- The gradient spans the clipped destination rectangle. With
--- `w(k, n) = trunc((float)((double)k / (n - 1)) * 256)`, 0 where n is 1, pixel (j, i) of it has
--- `G = mix(mix(top_left, bottom_left, w(i, dh)), mix(top_right, bottom_right, w(i, dh)), w(j, dw))`. The
--- sample becomes `(s & mask) | (G & ~mask)`, is mixed into d by its weight, and `keep_mask` is applied.
---
--- Returns 1 also when there is no memory for the weights of a row.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param dw integer The size of the rectangle in `dst`.
---@param dh integer The size of the rectangle in `dst`.
---@param sx integer Where the rectangle begins in `src`.
---@param sy integer Where the rectangle begins in `src`.
---@param sw integer The size of the rectangle in `src`.
---@param sh integer The size of the rectangle in `src`.
---@param opacity number Above 1 counts as 1; negative or not a number returns 1.
---@param keep_mask integer The bits of d that stay: `(d & keep_mask) | (new & ~keep_mask)`.
---@param mask integer The bits of the sample that stay.
---@param top_left integer The gradient's corner.
---@param top_right integer The gradient's corner.
---@param bottom_left integer The gradient's corner.
---@param bottom_right integer The gradient's corner.
---@param use_source_alpha integer Weight by the alpha of the sample as replaced; off: the constant
---  weight.
---@return integer 0: Done.
---  1: An argument is unusable, or clipping left nothing.
function functions.BBIExpandColorBlt(dst, src, dx, dy, dw, dh, sx, sy, sw, sh, opacity, keep_mask, mask, top_left, top_right, bottom_left, bottom_right, use_source_alpha)
  return library.BBIExpandColorBlt(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("dw", dw),
    check.int32_t("dh", dh),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.int32_t("sw", sw),
    check.int32_t("sh", sh),
    check.real("opacity", opacity),
    check.uint32_t("keep_mask", keep_mask),
    check.uint32_t("mask", mask),
    check.uint32_t("top_left", top_left),
    check.uint32_t("top_right", top_right),
    check.uint32_t("bottom_left", bottom_left),
    check.uint32_t("bottom_right", bottom_right),
    check.int32_t("use_source_alpha", use_source_alpha))
end

--- The general stretched blit.
---
--- For each destination pixel d, in this order:
---
--- 1. base = d, or with `source_is_base` the sample as read
--- 2. mask: `s = (s & mask) | (((~s & invert_bits) | colour) & ~mask)`
--- 3. saturation, in the colours: with `k = trunc(saturation * 1024)`, `m = (1024 - k) / 3` and
---    `g = (red + green + blue) * m >> 10`, each becomes `(colour * k >> 10) + g`, clamped to 0..255
--- 4. levels, in the colours: with lo and hi, a colour's bytes of `level_low` and `level_high`, v becomes,
---    whichever fits first, 255 - lo for v = lo = hi, 0 for `v <= lo`, 255 for `v >= hi`, else
---    `255 * (v - lo) / (hi - lo)`
--- 5. weight: with `use_source_alpha` the alpha weight of s as it is now, else the constant weight
--- 6. mix: s = mix(base, s, weight). With `add_colour` the colours become `min(base + (s * weight >> 8),
--- 255)`
---    instead; with `add_alpha` the alpha does. Each works for itself.
--- 7. keep: d = `(base & keep_mask) | (s & ~keep_mask)`
---
--- A constant weight of 0 (an opacity below 1 / 256) without `source_is_base` returns 1, even with
--- `use_source_alpha`.
---
--- A call is simple with saturation 1, levels of 0 and 0xFFFFFF in their lower three bytes and the last three
--- flags off. Simple calls return 0, not 2, and two of them, where the clipped sizes are equal and
--- `keep_mask`
--- is 0, do something else (the weight is the constant one, or with `use_source_alpha` that of s as read):
---
--- | `mask` | and | does |
--- |---|---|---|
--- | 0xFFFFFFFF | `use_source_alpha`, constant weight 256 | BBIBltBlend with 0 as its last argument |
--- | 0xFF000000 | `invert_bits` 0 | d = mix(d, colour, weight), its alpha byte too |
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param dw integer The size of the rectangle in `dst`.
---@param dh integer The size of the rectangle in `dst`.
---@param sx integer Where the rectangle begins in `src`.
---@param sy integer Where the rectangle begins in `src`.
---@param sw integer The size of the rectangle in `src`.
---@param sh integer The size of the rectangle in `src`.
---@param opacity number Above 1 counts as 1; negative or not a number counts as 0.
---@param saturation number 0 is grey, 1 as it was. Below 0 and not a number count as 0, above 256 as 256.
---@param level_low integer What becomes 0, for each colour; the top byte counts for nothing.
---@param level_high integer What becomes 255, for each colour; the top byte counts for nothing.
---@param keep_mask integer The bits of the base that stay.
---@param mask integer The bits of the sample that stay.
---@param colour integer What comes into the others.
---@param invert_bits integer Where the sample comes into the others inverted.
---@param use_source_alpha integer Weight by the alpha of s; off: the constant weight for all pixels.
---@param add_colour integer Add the colours.
---@param add_alpha integer Add the alpha.
---@param source_is_base integer Mix with the sample as read, not with d.
---@return integer 0: Done, by a simple call.
---  1: Clipping left nothing, or the constant weight is 0.
---  2: Done.
---  513: Filled, by a simple call.
function functions.BBIExpandChooseBlt(dst, src, dx, dy, dw, dh, sx, sy, sw, sh, opacity, saturation, level_low, level_high, keep_mask, mask, colour, invert_bits, use_source_alpha, add_colour, add_alpha, source_is_base)
  return library.BBIExpandChooseBlt(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("dw", dw),
    check.int32_t("dh", dh),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.int32_t("sw", sw),
    check.int32_t("sh", sh),
    check.real("opacity", opacity),
    check.real("saturation", saturation),
    check.uint32_t("level_low", level_low),
    check.uint32_t("level_high", level_high),
    check.uint32_t("keep_mask", keep_mask),
    check.uint32_t("mask", mask),
    check.uint32_t("colour", colour),
    check.uint32_t("invert_bits", invert_bits),
    check.int32_t("use_source_alpha", use_source_alpha),
    check.int32_t("add_colour", add_colour),
    check.int32_t("add_alpha", add_alpha),
    check.int32_t("source_is_base", source_is_base))
end

--- Stretches with bilinear interpolation: the sample replaces d.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param dw integer The size of the rectangle in `dst`.
---@param dh integer The size of the rectangle in `dst`.
---@param sx integer Where the rectangle begins in `src`.
---@param sy integer Where the rectangle begins in `src`.
---@param sw integer The size of the rectangle in `src`.
---@param sh integer The size of the rectangle in `src`.
---@return integer 0: Done.
---  1: An argument is unusable, or clipping left nothing.
function functions.BBILinearBlt(dst, src, dx, dy, dw, dh, sx, sy, sw, sh)
  return library.BBILinearBlt(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("dw", dw),
    check.int32_t("dh", dh),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.int32_t("sw", sw),
    check.int32_t("sh", sh))
end

--- Brings each sample into d by a table of weights and a mode.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param dw integer The size of the rectangle in `dst`.
---@param dh integer The size of the rectangle in `dst`.
---@param sx integer Where the rectangle begins in `src`.
---@param sy integer Where the rectangle begins in `src`.
---@param sw integer The size of the rectangle in `src`.
---@param sh integer The size of the rectangle in `src`.
---@param table tessaro.Buffer Weights of 0..256 by alpha, for example from BBIAlphaTableCreate. With
---  larger ones channels run over into their neighbours: with `L = 0x00FF00FF` and sums modulo 2^32, mixing
---  `d` and `s` gives `((d & L) * (256 - w) + (s & L) * w) >> 8 & L | ((d >> 8 & L) * (256 - w) + (s >> 8 & L)
---  * w) & ~L`, the tint likewise, and adding the saturated sum of `d` and that with `d` and `256 - w` left
---  out. Read once, before the first pixel is written. At least 256 words.
---@param mode integer What becomes of the sample.
---@param smooth integer Interpolate; off: always the nearest sample.
---@param tint integer The colour of the tint.
---@return integer 0: Done.
---  1: An argument is unusable, or clipping left nothing.
function functions.BBILinearRender(dst, src, dx, dy, dw, dh, sx, sy, sw, sh, table, mode, smooth, tint)
  return library.BBILinearRender(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("dw", dw),
    check.int32_t("dh", dh),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.int32_t("sw", sw),
    check.int32_t("sh", sh),
    check.memory("table", table, 1024, 0, false),
    check.int32_t("mode", mode),
    check.int32_t("smooth", smooth),
    check.uint32_t("tint", tint))
end

--- Fills a table with the weights of an opacity.
---@param table tessaro.Buffer The weights by alpha, 0..256. Needs no alignment. At least 256 words.
---@param opacity number Below 0 and not a number count as 0, above 1 as 1.
---@param by_alpha integer The alpha weights; off: the constant weight throughout.
function functions.BBIAlphaTableCreate(table, opacity, by_alpha)
  library.BBIAlphaTableCreate(
    check.memory("table", table, 1024, 0, true),
    check.real("opacity", opacity),
    check.int32_t("by_alpha", by_alpha))
end

--- Resizes all of `src` to all of `dst` with a cubic kernel.
---
--- The corners of the images coincide: destination column x lies at x times the quotient of width - 1 of
--- `src`
--- and of `dst`, or at 0 for a destination of one column; i is its integer part and t the rest. The four
--- columns from i - 1 on have the weights k(1 + t), k(t), k(1 - t), k(2 - t), where k(v) is
--- `1.0 - 2.0 * v * v + v * v * v` for `v < 1` and `4.0 - 8.0 * v + 5.0 * v * v - v * v * v` else; rows
--- likewise, all in double precision.
---
--- A tap's weight is the product of its column's and its row's, rounded to single precision; below 0 it
--- counts
--- as 0, so that negative lobes act only where two meet. Taps outside the source are 0x00000000. The 16 taps,
--- row by row from 0, are merged in pairs: (0, 1), (2, 3) .. (14, 15), then (0, 2), (4, 6), (8, 10), (12,
--- 14),
--- then (0, 4), (8, 12), then (0, 8). To merge b into a, a becomes mix(a, b, `trunc(wb / (wa + wb) * 256)`),
--- formed in double precision and 0 where both weights are 0; the weight of a becomes wa + wb, rounded to
--- single precision.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@return integer 0: Done.
---  1: An image has no pixels.
function functions.BBILinear(dst, src)
  return library.BBILinear((check.image("dst", dst, true)), (check.image("src", src, false)))
end

--- An experiment: the nearest sample, averaged with neighbours along a spiral.
---
--- The sample v at source pixel (x, y) takes in its neighbours one after another, later ones weighing more:
--- `v = (v + p) >> 1` per channel for p at (x, y) plus
---
---     (1, 0) (0, -1) (-1, 0) (0, 1)   (1, -1) (-1, -1) (-1, 1) (1, 1)   (2, 0) (0, -2) (-2, 0) (0, 2)
---     (2, -1) (-1, -2) (-2, 1) (1, 2)   (1, -2) (-2, -1) (-1, 2) (2, 1)
---
--- Of these the first `min((sw / dw + sh / dh + 5) & ~3, 20)` take part, and only where they lie at `sx < x`,
--- `x < sw`, `sy < y` and `y < sh`: the clipped sizes serve as limits of coordinates. d becomes v. Rows of
--- `src` are taken to lie `pitch / 4 * 4` bytes apart.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param dw integer The size of the rectangle in `dst`.
---@param dh integer The size of the rectangle in `dst`.
---@param sx integer Where the rectangle begins in `src`.
---@param sy integer Where the rectangle begins in `src`.
---@param sw integer The size of the rectangle in `src`.
---@param sh integer The size of the rectangle in `src`.
---@return integer 0: Done.
---  1: An argument is unusable, or clipping left nothing.
function functions.BBILinearBltTest(dst, src, dx, dy, dw, dh, sx, sy, sw, sh)
  return library.BBILinearBltTest(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("dw", dw),
    check.int32_t("dh", dh),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.int32_t("sw", sw),
    check.int32_t("sh", sh))
end

--- Cross-fades with one opacity: d = mix(d, s, constant weight).
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in `src`.
---@param sy integer Where the rectangle begins in `src`.
---@param opacity number Above 1 counts as 1; negative or not a number returns 1.
---@return integer 0: Done.
---  1: An argument is unusable, or clipping left nothing.
function functions.BBIFlip(dst, src, dx, dy, cx, cy, sx, sy, opacity)
  return library.BBIFlip(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.real("opacity", opacity))
end

--- Mixes by the alpha of the source: d = mix(d, s, alpha weight of s).
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in `src`.
---@param sy integer Where the rectangle begins in `src`.
---@param opacity number Above 1 counts as 1; negative or not a number returns 1.
---@return integer 0: Done.
---  1: An argument is unusable, or clipping left nothing.
function functions.BBIFlipBlend(dst, src, dx, dy, cx, cy, sx, sy, opacity)
  return library.BBIFlipBlend(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.real("opacity", opacity))
end

--- Alpha as depth: s replaces d where the alpha of s is greater; on equal alpha d stays.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in `src`.
---@param sy integer Where the rectangle begins in `src`.
---@return integer 0: Done.
---  1: An argument is unusable, or clipping left nothing.
function functions.BBIDepth(dst, src, dx, dy, cx, cy, sx, sy)
  return library.BBIDepth(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- As BBIDepth, but d becomes `(d & keep_mask) | (s & ~keep_mask)`.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in `src`.
---@param sy integer Where the rectangle begins in `src`.
---@param keep_mask integer The bits of d that stay: `(d & keep_mask) | (new & ~keep_mask)`.
---@return integer 0: Done.
---  1: An argument is unusable, or clipping left nothing.
function functions.BBIDepthMask(dst, src, dx, dy, cx, cy, sx, sy, keep_mask)
  return library.BBIDepthMask(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.uint32_t("keep_mask", keep_mask))
end

--- Fills `length` pixels from (x, y) to the right.
---
--- 1 when y lies outside the image or nothing is left.
---@param image tessaro.Image|tessaro.Buffer The image that is changed.
---@param x integer The first pixel of the run.
---@param y integer The first pixel of the run.
---@param length integer The length of the run, which is cut to the image.
---@param colour integer The new colour.
---@return integer 0: Done.
---  1: An argument is unusable, or clipping left nothing.
function functions.BBIFlipLineX(image, x, y, length, colour)
  return library.BBIFlipLineX(
    (check.image("image", image, true)),
    check.int32_t("x", x),
    check.int32_t("y", y),
    check.int32_t("length", length),
    check.uint32_t("colour", colour))
end

--- Fills `length` pixels from (x, y) downward.
---
--- 1 when x lies outside the image or nothing is left.
---
--- From the first pixel drawn, rows are stepped by `pitch & ~3`: with a pitch that is no multiple of 4 the
--- line drifts to the left, by up to 3 bytes a row. It ends where it would begin below the lowest address of
--- the image.
---@param image tessaro.Image|tessaro.Buffer The image that is changed.
---@param x integer The first pixel of the run.
---@param y integer The first pixel of the run.
---@param length integer The length of the run, which is cut to the image.
---@param colour integer The new colour.
---@return integer 0: Done.
---  1: An argument is unusable, or clipping left nothing.
function functions.BBIFlipLineY(image, x, y, length, colour)
  return library.BBIFlipLineY(
    (check.image("image", image, true)),
    check.int32_t("x", x),
    check.int32_t("y", y),
    check.int32_t("length", length),
    check.uint32_t("colour", colour))
end

--- Box blur of rows: the mean of pixels max(i - radius, 0) to min(i + radius, n - 1).
---
--- The window is cut at the ends, never padded. `dst` and `src` may be one image and one rectangle. The time
--- does not depend on the radius.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in `src`.
---@param sy integer Where the rectangle begins in `src`.
---@param radius integer How far the window reaches to either side. Lowered to `n / 2 - 1` and to 127;
---  below 1, given or lowered, the rectangle is copied as by BBIBlt.
---@return integer 0: Done.
---  1: An argument is unusable, or clipping left nothing.
function functions.BBIBltUBlur(dst, src, dx, dy, cx, cy, sx, sy, radius)
  return library.BBIBltUBlur(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.int32_t("radius", radius))
end

--- As BBIBltUBlur, along columns.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in `src`.
---@param sy integer Where the rectangle begins in `src`.
---@param radius integer How far the window reaches to either side. Lowered to `n / 2 - 1` and to 127;
---  below 1, given or lowered, the rectangle is copied as by BBIBlt.
---@return integer 0: Done.
---  1: An argument is unusable, or clipping left nothing.
function functions.BBIBltVBlur(dst, src, dx, dy, cx, cy, sx, sy, radius)
  return library.BBIBltVBlur(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.int32_t("radius", radius))
end

--- Box blur of rows for images that tile: the mean of pixels i - radius to i + radius, counted modulo n.
---
--- The pixels at both ends are read a second time, in the order of the window: the last radius, all, and the
--- first radius pixels. So the destination must not overlap the source; if it does, what was written is
--- blurred again.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in `src`.
---@param sy integer Where the rectangle begins in `src`.
---@param radius integer How far the window reaches to either side. Lowered to `n / 2 - 1` and to 127;
---  below 1, given or lowered, the rectangle is copied as by BBIBlt.
---@return integer 0: Done.
---  1: An argument is unusable, or clipping left nothing.
function functions.BBIBltUBlurLoop(dst, src, dx, dy, cx, cy, sx, sy, radius)
  return library.BBIBltUBlurLoop(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.int32_t("radius", radius))
end

--- As BBIBltUBlurLoop, along columns.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in `src`.
---@param sy integer Where the rectangle begins in `src`.
---@param radius integer How far the window reaches to either side. Lowered to `n / 2 - 1` and to 127;
---  below 1, given or lowered, the rectangle is copied as by BBIBlt.
---@return integer 0: Done.
---  1: An argument is unusable, or clipping left nothing.
function functions.BBIBltVBlurLoop(dst, src, dx, dy, cx, cy, sx, sy, radius)
  return library.BBIBltVBlurLoop(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.int32_t("radius", radius))
end

--- Rescales rows by num / den within the same length, with a box filter.
---
--- A source pixel counts as num units, a destination pixel is the mean of den units.
---
--- - Shrinking (`num < den`) starts at the first pixel: destination pixel k is made of den units from k * den
---   on, and unit u is source pixel `min(u / num, n - 1)`. The end of the row repeats the last pixel.
--- - Enlarging (and num = den) starts at the last pixel: destination pixel n - 1 - k is made of the same
---   units, and unit u is source pixel `max(m - 1 - u / num, 0)` with `m = n * den / num`. What is left over
---   at the start repeats pixel 0.
---
--- So `dst` and `src` may be one image and one rectangle. `num` and `den` are lowered each for itself, and
--- 256
--- / 512 is a copy: reduce the fraction first. Below 1, either returns 1.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in `src`.
---@param sy integer Where the rectangle begins in `src`.
---@param num integer The numerator of the scale; above 128 counts as 128.
---@param den integer The denominator, likewise.
---@return integer 0: Done.
---  1: An argument is unusable, or clipping left nothing.
function functions.BBIBltUScale(dst, src, dx, dy, cx, cy, sx, sy, num, den)
  return library.BBIBltUScale(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.int32_t("num", num),
    check.int32_t("den", den))
end

--- As BBIBltUScale, along columns.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in `src`.
---@param sy integer Where the rectangle begins in `src`.
---@param num integer The numerator of the scale; above 128 counts as 128.
---@param den integer The denominator, likewise.
---@return integer 0: Done.
---  1: An argument is unusable, or clipping left nothing.
function functions.BBIBltVScale(dst, src, dx, dy, cx, cy, sx, sy, num, den)
  return library.BBIBltVScale(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy),
    check.int32_t("num", num),
    check.int32_t("den", den))
end

--- Halves a rectangle of 2 cx x 2 cy pixels of `src` to cx x cy: the mean of 2 x 2 pixels.
---
--- Nothing is clipped: 1 unless both rectangles lie inside their images and `cx` and `cy` are at least 1.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param dx integer Where the rectangle begins in `dst`.
---@param dy integer Where the rectangle begins in `dst`.
---@param cx integer The size of the rectangle.
---@param cy integer The size of the rectangle.
---@param sx integer Where the rectangle begins in `src`.
---@param sy integer Where the rectangle begins in `src`.
---@return integer 0: Done.
---  1: An argument is unusable, or clipping left nothing.
function functions.BBIBltHalfSize(dst, src, dx, dy, cx, cy, sx, sy)
  return library.BBIBltHalfSize(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("dx", dx),
    check.int32_t("dy", dy),
    check.int32_t("cx", cx),
    check.int32_t("cy", cy),
    check.int32_t("sx", sx),
    check.int32_t("sy", sy))
end

--- Dithers for 5 bits a colour: c becomes `min((c & 248) + ((c & 7) < m ? 0 : 8), 255)`.
---
--- m at row y % 4, column x % 4 of
---
---     0 4 1 5
---     6 2 7 3
---     1 5 0 4
---     7 3 6 2
---@param image tessaro.Image|tessaro.Buffer The image that is changed.
---@return integer 0: Done.
---  1: The image has no pixels.
function functions.BBIColorCutDown1555(image)
  return library.BBIColorCutDown1555((check.image("image", image, true)))
end

--- Dithers for 4 bits a colour: c becomes `min((c & 240) + ((c & 15) < m ? 0 : 16), 255)`.
---
--- m at row y % 4, column x % 4 of
---
---      0  8  2 10
---     12  4 14  6
---      3 11  1  9
---     15  7 13  5
---@param image tessaro.Image|tessaro.Buffer The image that is changed.
---@return integer 0: Done.
---  1: The image has no pixels.
function functions.BBIColorCutDown4444(image)
  return library.BBIColorCutDown4444((check.image("image", image, true)))
end

--- Dithers for one bit a colour: c becomes `(c >> 2) < m ? 0 : 255`.
---
--- m at row y % 8, column x % 8 of
---
---      3 11 23 31 24 12  4  0
---     10 22 39 51 40 32 13  5
---     21 38 50 59 52 41 33 14
---     30 49 58 63 60 53 42 25
---     29 48 57 62 61 54 43 26
---     20 37 47 56 55 44 34 15
---      9 19 36 46 45 35 16  6
---      2  8 18 28 27 17  7  1
---@param image tessaro.Image|tessaro.Buffer The image that is changed.
---@return integer 0: Done.
---  1: The image has no pixels.
function functions.BBIColorCutDown1111(image)
  return library.BBIColorCutDown1111((check.image("image", image, true)))
end

--- Makes colours and alpha from colours or alpha; brightness is `(red + green + blue) / 3`.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param colour_from integer What the colours come from.
---@param alpha_from integer What the alpha comes from.
---@return integer 0: Done.
---  1: The images have no part in common.
function functions.BBIChooseCA(dst, src, colour_from, alpha_from)
  return library.BBIChooseCA(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("colour_from", colour_from),
    check.int32_t("alpha_from", alpha_from))
end

--- As BBIChooseCA; brightness is `trunc(green * 0.7154 + blue * 0.0721 + red * 0.2125)`, in double precision.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param colour_from integer What the colours come from.
---@param alpha_from integer What the alpha comes from.
---@return integer 0: Done.
---  1: The images have no part in common.
function functions.BBIChooseCATR(dst, src, colour_from, alpha_from)
  return library.BBIChooseCATR(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("colour_from", colour_from),
    check.int32_t("alpha_from", alpha_from))
end

--- As BBIChooseCA; brightness is `trunc(green * green_weight + blue * blue_weight + red * red_weight)`, in
--- double precision.
---
--- The low 8 bits of that integer are taken, so that 256 gives 0. A sum that fits no 32-bit integer, or is
--- not
--- a number, gives 0.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param colour_from integer What the colours come from.
---@param alpha_from integer What the alpha comes from.
---@param red_weight number The share of red.
---@param green_weight number The share of green.
---@param blue_weight number The share of blue.
---@return integer 0: Done.
---  1: The images have no part in common.
function functions.BBIChooseCATS(dst, src, colour_from, alpha_from, red_weight, green_weight, blue_weight)
  return library.BBIChooseCATS(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("colour_from", colour_from),
    check.int32_t("alpha_from", alpha_from),
    check.real("red_weight", red_weight),
    check.real("green_weight", green_weight),
    check.real("blue_weight", blue_weight))
end

--- Copies each channel from one that is named.
---@param dst tessaro.Image|tessaro.Buffer The image that is changed.
---@param src tessaro.Image|tessaro.Buffer The image that is read.
---@param red_from integer What becomes red.
---@param green_from integer What becomes green.
---@param blue_from integer What becomes blue.
---@param alpha_from integer What becomes alpha.
---@return integer 0: Done.
---  1: The images have no part in common.
function functions.BBIChooseRGBA(dst, src, red_from, green_from, blue_from, alpha_from)
  return library.BBIChooseRGBA(
    (check.image("dst", dst, true)),
    (check.image("src", src, false)),
    check.int32_t("red_from", red_from),
    check.int32_t("green_from", green_from),
    check.int32_t("blue_from", blue_from),
    check.int32_t("alpha_from", alpha_from))
end

--- Runs one of eleven operations on a whole image in place.
---
--- What the arguments are depends on the operation:
---
--- | `op` | `colour` | `key` | `extra` | `outer` | result |
--- |---|---|---|---|---|---|
--- | 0, 1 | new colour | key | | | 0 |
--- | 2 | fill colour | key | border on the others' side | border on the key's side | 0 |
--- | 3, 4 | new colour | key | | | 0 |
--- | 5 | new colour | key | most pixels of a region, signed | | regions painted |
--- | 6, 9 | colour that does not count | key | | | key pixels left |
--- | 7 | darkest grey, low byte | lightest grey, low byte | | | pixels left |
--- | 8 | new colour | | | | pixels painted |
--- | 10 | new colour | bits wanted | mask | | 0 |
---
--- 2, 3 and 4 ask what the neighbours were before the call. In 2, others with a key neighbour become `extra`
--- instead of `colour`, key pixels with another neighbour `outer`.
---
--- 6, 7 and 9 visit the pixels in four sweeps, row by row: even columns of even rows, odd columns of even
--- rows, even columns of odd rows, odd columns of odd rows. A pixel that was filled is a neighbour with its
--- new colour from then on. A pixel without neighbours that count stays and is counted.
---
--- - In 6 and 9 neighbours count that are neither key nor `colour`. One pass is made.
--- - In 7 grey pixels whose blue lies from the darkest to the lightest are to be filled, and neighbours count
---   that are not grey or were filled. Passes repeat until no pixel is left or one fills nothing.
--- - Commonest: the earlier of left, right, above, below on a tie.
--- - Average: per channel, alpha included, from the sum of those that count: of one the sum, of two
---   `sum >> 1`, of three `(sum + 3) * 85 >> 8`, of four `(sum + 2) >> 2`.
---
--- Any other operation, an image without pixels and a lack of working memory change nothing and return 0.
---@param image tessaro.Image|tessaro.Buffer The image that is changed.
---@param op integer The operation.
---@param colour integer A colour, see the table.
---@param key integer The key, see the table.
---@param extra integer Another colour, a number or a mask, see the table.
---@param outer integer Another colour, see the table.
---@return integer A number of pixels or regions, see the table.
function functions.BBIPaintChoose(image, op, colour, key, extra, outer)
  return library.BBIPaintChoose(
    (check.image("image", image, true)),
    check.uint32_t("op", op),
    check.uint32_t("colour", colour),
    check.uint32_t("key", key),
    check.uint32_t("extra", extra),
    check.uint32_t("outer", outer))
end

--- Reads a frame at the 16-bit scale.
---@param data tessaro.Buffer Frame 0: 1, 2 or 3 bytes a sample, 1 or 2 samples. At least max(count, 0) *
---  (2 * min(abs(bits - 8), 1) + min(abs(bits - 16), 1)) * (2 - min(abs(channels - 2), 1)) bytes.
---@param index integer The frame.
---@param bits integer The width of a stored sample.
---@param channels integer Samples a frame.
---@param count integer Frames that the memory holds.
---@param left tessaro.Buffer The left sample, or the only one. At least 1 words.
---@param right tessaro.Buffer The right sample, or the only one. At least 1 words.
---@return integer 0: Always.
function functions.GetWave(data, index, bits, channels, count, left, right)
  bits = check.int32_t("bits", bits)
  channels = check.int32_t("channels", channels)
  count = check.int32_t("count", count)
  return library.GetWave(
    check.memory("data", data, math.max(count, 0) * (2 * math.min(math.abs(bits - 8), 1) + math.min(math.abs(bits - 16), 1)) * (2 - math.min(math.abs(channels - 2), 1)), 0, false),
    check.int32_t("index", index),
    bits,
    channels,
    count,
    check.memory("left", left, 4, 0, true),
    check.memory("right", right, 4, 0, true))
end

--- Writes a frame at the 16-bit scale, without clamping.
---@param data tessaro.Buffer Frame 0. At least max(count, 0) * (2 * min(abs(bits - 8), 1) + min(abs(bits
---  - 16), 1)) * (2 - min(abs(channels - 2), 1)) bytes.
---@param index integer The frame.
---@param bits integer The width of a stored sample.
---@param channels integer Samples a frame.
---@param count integer Frames that the memory holds.
---@param left integer The left value; what does not fit loses its high bits.
---@param right integer The right one.
---@return integer 0: Always.
function functions.LetWave(data, index, bits, channels, count, left, right)
  bits = check.int32_t("bits", bits)
  channels = check.int32_t("channels", channels)
  count = check.int32_t("count", count)
  return library.LetWave(
    check.memory("data", data, math.max(count, 0) * (2 * math.min(math.abs(bits - 8), 1) + math.min(math.abs(bits - 16), 1)) * (2 - math.min(math.abs(channels - 2), 1)), 0, true),
    check.int32_t("index", index),
    bits,
    channels,
    count,
    check.int32_t("left", left),
    check.int32_t("right", right))
end

--- Reads a frame at the 24-bit scale.
---@param data tessaro.Buffer Frame 0: 1, 2 or 3 bytes a sample, 1 or 2 samples. At least max(count, 0) *
---  (2 * min(abs(bits - 8), 1) + min(abs(bits - 16), 1)) * (2 - min(abs(channels - 2), 1)) bytes.
---@param index integer The frame.
---@param bits integer The width of a stored sample.
---@param channels integer Samples a frame.
---@param count integer Frames that the memory holds.
---@param left tessaro.Buffer The left sample, or the only one. At least 1 words.
---@param right tessaro.Buffer The right sample, or the only one. At least 1 words.
---@return integer 0: Always.
function functions.GetWave24(data, index, bits, channels, count, left, right)
  bits = check.int32_t("bits", bits)
  channels = check.int32_t("channels", channels)
  count = check.int32_t("count", count)
  return library.GetWave24(
    check.memory("data", data, math.max(count, 0) * (2 * math.min(math.abs(bits - 8), 1) + math.min(math.abs(bits - 16), 1)) * (2 - math.min(math.abs(channels - 2), 1)), 0, false),
    check.int32_t("index", index),
    bits,
    channels,
    count,
    check.memory("left", left, 4, 0, true),
    check.memory("right", right, 4, 0, true))
end

--- Writes a frame at the 24-bit scale, without clamping.
---@param data tessaro.Buffer Frame 0. At least max(count, 0) * (2 * min(abs(bits - 8), 1) + min(abs(bits
---  - 16), 1)) * (2 - min(abs(channels - 2), 1)) bytes.
---@param index integer The frame.
---@param bits integer The width of a stored sample.
---@param channels integer Samples a frame.
---@param count integer Frames that the memory holds.
---@param left integer The left value; what does not fit loses its high bits.
---@param right integer The right one.
---@return integer 0: Always.
function functions.LetWave24(data, index, bits, channels, count, left, right)
  bits = check.int32_t("bits", bits)
  channels = check.int32_t("channels", channels)
  count = check.int32_t("count", count)
  return library.LetWave24(
    check.memory("data", data, math.max(count, 0) * (2 * math.min(math.abs(bits - 8), 1) + math.min(math.abs(bits - 16), 1)) * (2 - math.min(math.abs(channels - 2), 1)), 0, true),
    check.int32_t("index", index),
    bits,
    channels,
    count,
    check.int32_t("left", left),
    check.int32_t("right", right))
end

--- Reads a frame at the float scale.
---@param data tessaro.Buffer Frame 0. At least max(count, 0) * min(bits / 8, 8) * (2 - min(abs(channels -
---  2), 1)) bytes.
---@param index integer The frame.
---@param bits integer The width of a stored sample.
---@param channels integer Samples a frame.
---@param count integer Frames that the memory holds.
---@param left tessaro.Buffer The left sample, or the only one; untouched for unknown bits. At least 1
---  doubles.
---@param right tessaro.Buffer The right sample, or the only one; untouched for unknown bits. At least 1
---  doubles.
---@return integer 0: Always.
function functions.GetWave64(data, index, bits, channels, count, left, right)
  bits = check.int32_t("bits", bits)
  channels = check.int32_t("channels", channels)
  count = check.int32_t("count", count)
  return library.GetWave64(
    check.memory("data", data, math.max(count, 0) * math.min(check.div(bits, 8), 8) * (2 - math.min(math.abs(channels - 2), 1)), 0, false),
    check.int32_t("index", index),
    bits,
    channels,
    count,
    check.memory("left", left, 8, 0, true),
    check.memory("right", right, 8, 0, true))
end

--- Writes a frame at the float scale, clamped to -1..1.
---@param data tessaro.Buffer Frame 0. At least max(count, 0) * min(bits / 8, 8) * (2 - min(abs(channels -
---  2), 1)) bytes.
---@param index integer The frame.
---@param bits integer The width of a stored sample.
---@param channels integer Samples a frame.
---@param count integer Frames that the memory holds.
---@param left number The left value; not a number counts as -1.
---@param right number The right one.
---@return integer 0: Always.
function functions.LetWave64(data, index, bits, channels, count, left, right)
  bits = check.int32_t("bits", bits)
  channels = check.int32_t("channels", channels)
  count = check.int32_t("count", count)
  return library.LetWave64(
    check.memory("data", data, math.max(count, 0) * math.min(check.div(bits, 8), 8) * (2 - math.min(math.abs(channels - 2), 1)), 0, true),
    check.int32_t("index", index),
    bits,
    channels,
    count,
    check.real("left", left),
    check.real("right", right))
end

--- Packs a format code: `rate * 256 + bits + channels`.
---@param bits integer The width of a sample.
---@param channels integer Samples a frame.
---@param rate integer Frames a second. Not checked here: the functions that take the code refuse other
---  rates.
---@return integer The code, in the low 32 bits; 0 for other bits or channels.
function functions.waveFormatEnc(bits, channels, rate)
  return library.waveFormatEnc(
    check.int32_t("bits", bits),
    check.int32_t("channels", channels),
    check.int32_t("rate", rate))
end

--- Converts a whole buffer at the 16-bit scale: frames `0..dst->count - 1`, silence past the end of `src`.
---
--- 24-bit samples lose their lowest byte. For full resolution and for 64-bit buffers use `waveBlt64`.
---@param dst tessaro.Sound The buffer that is filled.
---@param src tessaro.Sound The buffer that is read.
---@return integer 0: Done.
---  1: One of the formats is invalid.
function functions.waveFormat(dst, src)
  return library.waveFormat(check.sound("dst", dst, 0), check.sound("src", src, 0))
end

--- Copies with a gain at the 24-bit scale: `(s * trunc(gain * 64)) >> 6`.
---@param dst tessaro.Sound The buffer that is written.
---@param src tessaro.Sound The buffer that is read.
---@param dst_start integer The first frame written; may be negative or past the end.
---@param src_start integer The first frame read; may be negative or past the end.
---@param count integer How many frames; below 1 does nothing and returns 0.
---@param gain number Limited to this range; not a number counts as 0. From 1 to below 1 + 1/64 frames are
---  copied exactly.
---@return integer 0: Done.
---  1: A format is invalid, or a parameter is refused.
function functions.waveBlt(dst, src, dst_start, src_start, count, gain)
  return library.waveBlt(
    check.sound("dst", dst, 0),
    check.sound("src", src, 0),
    check.int32_t("dst_start", dst_start),
    check.int32_t("src_start", src_start),
    check.int32_t("count", count),
    check.real("gain", gain))
end

--- Moving average at the 16-bit scale: the sum of the source frames from `radius` before to `radius` after,
--- divided by `2 * radius + 1` and truncated toward zero.
---
--- Frames before `src_start + radius` count as silence, so the first `2 * radius` results fade in. The cost
--- does not depend on the radius.
---@param dst tessaro.Sound The buffer that is written.
---@param src tessaro.Sound The buffer that is read.
---@param dst_start integer The first frame written; may be negative or past the end.
---@param src_start integer The first frame read; may be negative or past the end.
---@param count integer How many frames; below 1 does nothing and returns 0.
---@param radius integer Below 1 is refused; above 511 counts as 511.
---@return integer 0: Done.
---  1: A format is invalid, or a parameter is refused.
function functions.waveBltBlur(dst, src, dst_start, src_start, count, radius)
  return library.waveBltBlur(
    check.sound("dst", dst, 0),
    check.sound("src", src, 0),
    check.int32_t("dst_start", dst_start),
    check.int32_t("src_start", src_start),
    check.int32_t("count", count),
    check.int32_t("radius", radius))
end

--- Exclusive-or at the 16-bit scale: `d ^ s`, with `s` read `offset` frames further on.
---
--- Between 16-bit buffers, the same call undoes it.
---@param dst tessaro.Sound The buffer that is written.
---@param src tessaro.Sound The buffer that is read.
---@param dst_start integer The first frame written; may be negative or past the end.
---@param src_start integer The first frame read; may be negative or past the end.
---@param count integer How many frames; below 1 does nothing and returns 0.
---@param offset integer Below 1 is refused.
---@return integer 0: Done.
---  1: A format is invalid, or a parameter is refused.
function functions.waveBltGluder(dst, src, dst_start, src_start, count, offset)
  return library.waveBltGluder(
    check.sound("dst", dst, 0),
    check.sound("src", src, 0),
    check.int32_t("dst_start", dst_start),
    check.int32_t("src_start", src_start),
    check.int32_t("count", count),
    check.int32_t("offset", offset))
end

--- Copies with noise at the 16-bit scale: `s + (((noise - 32768) * trunc(amount * 256)) >> 8)`.
---
--- `noise` is `GetRandom(65536)`, drawn for the left and then for the right channel of every frame, whatever
--- the formats, the amount and the ends of the buffers: the result depends on every other draw in the
--- process.
--- A run of 2^31 frames therefore takes seconds.
---@param dst tessaro.Sound The buffer that is written.
---@param src tessaro.Sound The buffer that is read.
---@param dst_start integer The first frame written; may be negative or past the end.
---@param src_start integer The first frame read; may be negative or past the end.
---@param count integer How many frames; below 1 does nothing and returns 0.
---@param amount number Limited to this range; not a number counts as 0.
---@return integer 0: Done.
---  1: A format is invalid, or a parameter is refused.
function functions.waveBltAddNoise(dst, src, dst_start, src_start, count, amount)
  return library.waveBltAddNoise(
    check.sound("dst", dst, 0),
    check.sound("src", src, 0),
    check.int32_t("dst_start", dst_start),
    check.int32_t("src_start", src_start),
    check.int32_t("count", count),
    check.real("amount", amount))
end

--- Copies with a tone at the 16-bit scale: `s + trunc(sin(phase) * amplitude * 32768)`, the same tone in both
--- channels.
---
--- From `phase = modulation = 0` and `increment = frequency`, after every frame: `phase += increment` (the
--- old
--- one), `modulation += rate`, `increment += sin(modulation) * depth` (the new modulation). The three are
--- kept
--- in single precision; sines, the product `sin(phase) * amplitude * 32768` and the sum that becomes the
--- increment are formed in double. Every call begins anew. From a far negative position the tone is worked
--- through.
---@param dst tessaro.Sound The buffer that is written.
---@param src tessaro.Sound The buffer that is read.
---@param dst_start integer The first frame written; may be negative or past the end.
---@param src_start integer The first frame read; may be negative or past the end.
---@param count integer How many frames; below 1 does nothing and returns 0.
---@param amplitude number Limited to this range; not a number counts as -1.
---@param frequency number The first increment: radians a frame, not hertz. `2 * pi * hertz /
---  rate_of_the_buffer`.
---@param depth number How much the increment moves in a frame at most.
---@param rate number The speed of that movement: radians a frame, not hertz.
---@return integer 0: Done.
---  1: A format is invalid, or a parameter is refused.
function functions.waveBltSin(dst, src, dst_start, src_start, count, amplitude, frequency, depth, rate)
  return library.waveBltSin(
    check.sound("dst", dst, 0),
    check.sound("src", src, 0),
    check.int32_t("dst_start", dst_start),
    check.int32_t("src_start", src_start),
    check.int32_t("count", count),
    check.real("amplitude", amplitude),
    check.real("frequency", frequency),
    check.real("depth", depth),
    check.real("rate", rate))
end

--- Mixes at the 16-bit scale: `d + ((s * trunc(gain * 256)) >> 8)`.
---@param dst tessaro.Sound The buffer that is written.
---@param src tessaro.Sound The buffer that is read.
---@param dst_start integer The first frame written; may be negative or past the end.
---@param src_start integer The first frame read; may be negative or past the end.
---@param count integer How many frames; below 1 does nothing and returns 0.
---@param gain number A negative gain and not a number are refused; above 4 counts as 4.
---@return integer 0: Done.
---  1: A format is invalid, or a parameter is refused.
function functions.waveBltAdd(dst, src, dst_start, src_start, count, gain)
  return library.waveBltAdd(
    check.sound("dst", dst, 0),
    check.sound("src", src, 0),
    check.int32_t("dst_start", dst_start),
    check.int32_t("src_start", src_start),
    check.int32_t("count", count),
    check.real("gain", gain))
end

--- Subtracts at the 16-bit scale: `d - ((s * trunc(gain * 256)) >> 8)`.
---@param dst tessaro.Sound The buffer that is written.
---@param src tessaro.Sound The buffer that is read.
---@param dst_start integer The first frame written; may be negative or past the end.
---@param src_start integer The first frame read; may be negative or past the end.
---@param count integer How many frames; below 1 does nothing and returns 0.
---@param gain number A negative gain and not a number are refused; above 4 counts as 4.
---@return integer 0: Done.
---  1: A format is invalid, or a parameter is refused.
function functions.waveBltSub(dst, src, dst_start, src_start, count, gain)
  return library.waveBltSub(
    check.sound("dst", dst, 0),
    check.sound("src", src, 0),
    check.int32_t("dst_start", dst_start),
    check.int32_t("src_start", src_start),
    check.int32_t("count", count),
    check.real("gain", gain))
end

--- Ring modulation by the magnitude of the source, at the 16-bit scale: `(abs(s) * d) >> 15`.
---
--- The gain can refuse, and does nothing else.
---@param dst tessaro.Sound The buffer that is written.
---@param src tessaro.Sound The buffer that is read.
---@param dst_start integer The first frame written; may be negative or past the end.
---@param src_start integer The first frame read; may be negative or past the end.
---@param count integer How many frames; below 1 does nothing and returns 0.
---@param gain number A negative gain and not a number are refused; above 4 counts as 4.
---@return integer 0: Done.
---  1: A format is invalid, or a parameter is refused.
function functions.waveBltMul(dst, src, dst_start, src_start, count, gain)
  return library.waveBltMul(
    check.sound("dst", dst, 0),
    check.sound("src", src, 0),
    check.int32_t("dst_start", dst_start),
    check.int32_t("src_start", src_start),
    check.int32_t("count", count),
    check.real("gain", gain))
end

--- Copies at the float scale: converts between all formats, and keeps what they can hold to within one unit.
---@param dst tessaro.Sound The buffer that is written.
---@param src tessaro.Sound The buffer that is read.
---@param dst_start integer The first frame written; may be negative or past the end.
---@param src_start integer The first frame read; may be negative or past the end.
---@param count integer How many frames; below 1 does nothing and returns 0.
---@return integer 0: Done.
---  1: A format is invalid, or a parameter is refused.
function functions.waveBlt64(dst, src, dst_start, src_start, count)
  return library.waveBlt64(
    check.sound("dst", dst, 0),
    check.sound("src", src, 0),
    check.int32_t("dst_start", dst_start),
    check.int32_t("src_start", src_start),
    check.int32_t("count", count))
end

--- Multiplies by `target / 0.01` at the float scale, clamped to -1..1.
---
--- Despite the name the level of the material plays no part.
---
--- The quotient is formed in double precision from the single-precision target.
---@param dst tessaro.Sound The buffer that is written.
---@param src tessaro.Sound The buffer that is read.
---@param dst_start integer The first frame written; may be negative or past the end.
---@param src_start integer The first frame read; may be negative or past the end.
---@param count integer How many frames; below 1 does nothing and returns 0.
---@param target number Limited to this range; not a number counts as 0. 0.01 keeps the level, 1
---  multiplies it by 100.
---@return integer 0: Done.
---  1: A format is invalid, or a parameter is refused.
function functions.waveNormal(dst, src, dst_start, src_start, count, target)
  return library.waveNormal(
    check.sound("dst", dst, 0),
    check.sound("src", src, 0),
    check.int32_t("dst_start", dst_start),
    check.int32_t("src_start", src_start),
    check.int32_t("count", count),
    check.real("target", target))
end

--- Silences frames `start..start + count - 1`.
---@param dst tessaro.Sound The buffer that is written.
---@param start integer The first frame; may be negative or past the end.
---@param count integer How many frames; below 1 does nothing and returns 0.
---@return integer 0: Done.
---  1: A format is invalid, or a parameter is refused.
function functions.waveClear64(dst, start, count)
  return library.waveClear64(
    check.sound("dst", dst, 0),
    check.int32_t("start", start),
    check.int32_t("count", count))
end

--- Fills `dst` with `src` read at a constant speed: frame `i` is the blend of the two source frames around `p
--- = i * ratio`.
---
--- `p` is formed in double precision, `n = trunc(p)`.
--- - Same bits and channels, 8 or 16 bits: stored samples are blended, `(sample(n + 1) * f + sample(n) * (256
--- - f)) >> 8` with `f = trunc((p - n) * 256)`. The last source frame is held; frames from `src->count` on
--- are
---   silence.
--- - Same bits and channels, 24 or 64 bits: nothing is written, and 0 returned. Go through a buffer of other
---   bits.
--- - All else at the 16-bit scale: `((32768 - f) * s(n) + f * s(n + 1)) >> 15` with `f = trunc((p - n) *
---   32768)`; behind the last frame lies silence, into which it fades.
---@param dst tessaro.Sound The buffer that is filled, all of it.
---@param src tessaro.Sound The buffer that is read.
---@param ratio number Source frames for each destination frame: above 1 is faster and higher. Negative
---  and not a number are refused.
---@return integer 0: Done, or nothing to do.
---  1: A format is invalid or the ratio refused.
function functions.waveExpand(dst, src, ratio)
  return library.waveExpand(
    check.sound("dst", dst, 0),
    check.sound("src", src, 0),
    check.real("ratio", ratio))
end

--- Raises quiet passages, in place, at the 24-bit scale.
---
--- In the `count` frames at the look position, magnitudes are limited to 8388607 and their bits joined by or.
--- Each channel's new gain is `gain * growth`, at least 1 and at most 8; at most 4 with bit 20, 2 with bit
--- 21,
--- 1 with bit 22 (the highest that is set decides). The gain thus grows once a call. Frames at the write
--- position are multiplied by `old, old + step, old + 2 * step, ...` with `step = (new - old) / count`, by
--- repeated addition, and truncated. Where a loud block follows, the first products may not fit and then
--- wrap;
--- beyond 32 bits, and where the gain is not a number, they count as -2^31. A gain that is not a number stays
--- so.
---@param buffer tessaro.Sound The sound.
---@param look_position tessaro.Buffer The first frame whose loudness is looked at. A host keeps it a
---  block or more ahead of the write position. At least 1 words.
---@param write_position tessaro.Buffer The first frame that is changed. At least 1 words.
---@param count integer The length of the block. Below 1 is refused.
---@param growth number Limited to this range; not a number counts as 1.0001.
---@param left_gain tessaro.Buffer The gain of the left channel; a host begins with 1.0. At least 1
---  doubles.
---@param right_gain tessaro.Buffer The gain of the right channel. At least 1 doubles.
---@return integer 0: Done.
---  1: A format is invalid or the count is below 1.
function functions.waveEffectMaximizer24(buffer, look_position, write_position, count, growth, left_gain, right_gain)
  return library.waveEffectMaximizer24(
    check.sound("buffer", buffer, 0),
    check.memory("look_position", look_position, 4, 0, true),
    check.memory("write_position", write_position, 4, 0, true),
    check.int32_t("count", count),
    check.real("growth", growth),
    check.memory("left_gain", left_gain, 8, 0, true),
    check.memory("right_gain", right_gain, 8, 0, true))
end

--- Raises quiet passages at the float scale, from `src` to `dst`, both at the write position.
---
--- Results are clamped to -1..1.
---
--- A state is the gain less 16. It becomes `state + step`, but at least -15 (a gain of 1), and then at most
--- `limit - 16`: for loud material the limit wins. The limit follows from the peak `p` of the `count` source
--- frames at the look position, the largest magnitude in the channel:
---
--- | p from | limit |
--- |---|---|
--- | 0 | 16 |
--- | 0.06249 | 14 |
--- | 0.07142 | 12 |
--- | 0.08333 | 10 |
--- | 0.09999 | 8 |
--- | 0.1249 | 6 |
--- | 0.1666 | 4 |
--- | 0.249 | 2 |
--- | 0.49 | 1 |
--- | 0.99 | 0.5 |
--- | 1.99 | 0.25 |
--- | 3.99 | 0.125 |
--- | 7.99 | 0 |
---
--- A state that is not a number stays so; samples that are not a number do not count in the peak. The gain
--- moves over the block as in `waveEffectMaximizer24`, from `old state + 16` to `new state + 16`.
---@param dst tessaro.Sound The buffer that is written.
---@param src tessaro.Sound The buffer that is read.
---@param look_position tessaro.Buffer The first frame whose loudness is looked at. A host keeps it a
---  block or more ahead of the write position. At least 1 words.
---@param write_position tessaro.Buffer The first frame that is changed. At least 1 words.
---@param count integer The length of the block. Below 1 is refused.
---@param step number Limited to this range; not a number counts as 0.
---@param left_state tessaro.Buffer The state of the left channel; a host begins with -15.0. At least 1
---  doubles.
---@param right_state tessaro.Buffer The state of the right channel. At least 1 doubles.
---@return integer 0: Done.
---  1: A format is invalid or the count is below 1.
function functions.waveEffectMaximizer64(dst, src, look_position, write_position, count, step, left_state, right_state)
  return library.waveEffectMaximizer64(
    check.sound("dst", dst, 0),
    check.sound("src", src, 0),
    check.memory("look_position", look_position, 4, 0, true),
    check.memory("write_position", write_position, 4, 0, true),
    check.int32_t("count", count),
    check.real("step", step),
    check.memory("left_state", left_state, 8, 0, true),
    check.memory("right_state", right_state, 8, 0, true))
end

--- Adds echoes to `count` frames from the frame position on, in place, at the float scale.
---
--- For every frame, with `r` the ring position:
--- 1. ring frame `r + 199`, times 0.005, is added to the frame, which is written clamped;
--- 2. ring frame `r` is cleared;
--- 3. with `e = (left + right) * (level * 0.5)` of the frame as it was read, unless that is 0 or not a
--- number:
---    from `x = r + predelay`, for each tap, with `i = trunc(x)` in 64 bits (-2^63 for what does not fit or
--- is
---    not a number) and `f = x - i`, ring frame `i` receives `(1
--- - f) * e * gain` and ring frame `i + 1` receives `f * e * gain` of each channel's gain; then `x += spread
--- *
---   distance`;
--- 4. both positions advance by one.
---
--- Ring frames are taken modulo 524288. So an echo is heard 199 frames before its delay is over, and one of
--- less than 200 frames never. Calls that pass on the ring and both positions make one continuous reverb.
--- Frames outside the buffer are silence, and only clear the ring.
---@param buffer tessaro.Sound The sound. A count of 0 is refused; a negative one is silence.
---@param frame_position tessaro.Buffer The first frame; advanced by `count`. At least 1 words.
---@param ring tessaro.Sound A 64-bit buffer of at least 524288 frames by its count, whatever its channels
---  used as 524288 frames of two doubles: its data must be 8 MiB, cleared by the host before the first call.
---  Its format and count may say one channel, but not less memory.
---@param ring_position tessaro.Buffer The place in the ring, 0..524287; other values are taken modulo
---  524288. At least 1 words.
---@param count integer The length of the block. Below 1 is refused.
---@param level number How loud the echoes are sent; limited to this range, not a number counts as 0.
---@param predelay integer From a frame to its first echo; limited to this range.
---@param spread integer Multiplies the distances of the taps; limited to this range.
---@param taps integer How many echoes a frame has; limited to this range.
---@param tap_table tessaro.Buffer 10000 left gains, 10000 right gains, 10000 distances from a tap to the
---  next in frames; the first `taps` of each are read. At least 30000 doubles.
---@return integer 0: Done.
---  1: The count is below 1; the buffer is invalid or has a count of 0; the ring is invalid, has fewer
---  frames or other bits; or there is no memory for the distances of the taps, 8 bytes each.
function functions.waveEffectReverbA1(buffer, frame_position, ring, ring_position, count, level, predelay, spread, taps, tap_table)
  return library.waveEffectReverbA1(
    check.sound("buffer", buffer, 0),
    check.memory("frame_position", frame_position, 4, 0, true),
    check.sound("ring", ring, 8388608),
    check.memory("ring_position", ring_position, 4, 0, true),
    check.int32_t("count", count),
    check.real("level", level),
    check.int32_t("predelay", predelay),
    check.int32_t("spread", spread),
    check.int32_t("taps", taps),
    check.memory("tap_table", tap_table, 240000, 0, false))
end

--- Real and imaginary parts of the spectrum.
---@param buffer tessaro.Sound The sound.
---@param start integer The first frame.
---@param n integer The length of the run and of both arrays.
---@param re tessaro.Buffer Real parts. Must not share memory with the sound or with `im`. At least n
---  doubles.
---@param im tessaro.Buffer Imaginary parts. At least n doubles.
---@return integer 0: Done.
---  1: The format is invalid.
---  2: `n` is below 1 or `start` negative.
---  3: The run leaves the buffer.
function functions.wavefft(buffer, start, n, re, im)
  n = check.int32_t("n", n)
  return library.wavefft(
    check.sound("buffer", buffer, 0),
    check.int32_t("start", start),
    n,
    check.memory("re", re, 8 * n, 0, true),
    check.memory("im", im, 8 * n, 0, true))
end

--- Magnitude and angle: after `wavefft`, `re[k]` becomes `sqrt(re * re + im * im)` and `im[k]` becomes
--- `atan2(re, im)`, in radians from the imaginary axis.
---
--- The arctangent is within one unit in the last place of the exact one, and the same on every target. The
--- arrays are converted whatever the result, if `n` is at least 1: what they hold must be defined.
---@param buffer tessaro.Sound The sound.
---@param start integer The first frame.
---@param n integer The length of the run and of both arrays.
---@param re tessaro.Buffer Real parts. Must not share memory with the sound or with `im`. At least n
---  doubles.
---@param im tessaro.Buffer Imaginary parts. At least n doubles.
---@return integer 0: Done.
---  1: The format is invalid; the arrays are converted all the same.
---  2: `n` is below 1, or `start` is negative and the arrays are converted all the same.
---  3: The run leaves the buffer; the arrays are converted all the same.
function functions.wavefft2(buffer, start, n, re, im)
  n = check.int32_t("n", n)
  return library.wavefft2(
    check.sound("buffer", buffer, 0),
    check.int32_t("start", start),
    n,
    check.memory("re", re, 8 * n, 0, true),
    check.memory("im", im, 8 * n, 0, true))
end

functions.codecs = {
  i = { encoder = functions.iEncoder, decoder = functions.iDecoderSafe },
  io = { encoder = functions.ioEncoder, decoder = functions.ioDecoderSafe },
  ib18 = { encoder = functions.ib18Encoder, decoder = functions.ib18DecoderSafe },
  ib18_ex = { encoder = functions.ib18EncoderEx, decoder = functions.ib18DecoderExSafe },
  iabr = { encoder = functions.iabrEncoder, decoder = functions.iabrDecoderSafe },
  inabe = { encoder = functions.inabeEncoder, decoder = functions.inabeDecoderSafe },
  imist = { encoder = functions.imistEncoder, decoder = functions.imistDecoderSafe },
  inda = { encoder = functions.indaEncoder, decoder = functions.indaDecoderSafe },
  ica = { encoder = functions.icaEncoder, decoder = functions.icaDecoderSafe },
  c2f = { encoder = functions.c2fEncoder, decoder = functions.c2fDecoder },
}

return functions
