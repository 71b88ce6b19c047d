// Paints an evening by the sea and saves it as a bitmap file: evening [FILE]
program Evening;

{$IFDEF FPC} {$MODE DELPHI} {$ENDIF}

uses
  SysUtils, Classes, Tessaro, TessaroImages;

const
  Width = 480;
  Height = 300;
  Horizon = 180;

var
  Picture, Light, Rings, Sea: TTessaroImage;
  I, Y: Integer;
  Warm: Cardinal;
  Stream, Back: array of Byte;
  Written: Cardinal;
  Head: packed record
    Name: array [0..1] of AnsiChar;
    Size, Reserved, Pixels, HeadSize, W, H, Bits: Integer;
    Rest: array [0..5] of Integer;
  end;
  FileName: string;
  Output_: TFileStream;

procedure Mountain(Left, Top, Right: Integer; Colour: Cardinal);
begin
  BBIDrawTriangle(Picture.Image, Left, Horizon, Right, Horizon, (Left + Right) div 2, Top, 0, Colour);
end;

begin
  Picture := TTessaroImage.Create(Width, Height);
  Light := TTessaroImage.Create(Width, Height);

  // The sky: a colour for each corner.
  BBIDrawBox(Picture.Image, 0, 0, Width, Horizon, 0, $FF1A2A52, $FF2A3266, $FFF08A4B, $FFF8B45F);

  // The sun: rings from black to the inner colour, added to the sky.
  Rings := TTessaroImage.Create(64, 1);
  for I := 0 to 63 do
  begin
    Warm := Trunc(255 * (I / 63) * (I / 63) * (I / 63) + 0.5);
    Rings[I, 0] := $FF000000 or (Warm shl 16) or ((Warm * 3 div 4) shl 8) or (Warm div 4);
  end;
  BBIDrawLineCircle(Light.Image, Rings.Image, 180, -10, 480, 290);
  BBIBltAdd(Picture.Image, Light.Image, 0, 0, Width, Horizon, 0, 0);

  // Mountains, far ones first.
  Mountain(-40, 95, 200, $FF5B4A72);
  Mountain(90, 120, 300, $FF4A3D66);
  Mountain(-90, 130, 120, $FF33294D);

  // The sea: the sky upside down, blurred along its rows, and darker.
  Sea := TTessaroImage.Create(Width, Height);
  for Y := 0 to Height - Horizon - 1 do
    BBIBlt(Sea.Image, Picture.Image, 0, Y, Width, 1, 0, Horizon - 1 - Y);
  BBIBltUBlur(Picture.Image, Sea.Image, 0, Horizon, Width, Height - Horizon, 0, 0, 24);
  BBIDrawColorFill(Light.Image, 0, 0, Width, Height, 0, $FFB0A0A8);
  BBIBltMul(Picture.Image, Light.Image, 0, Horizon, Width, Height - Horizon, 0, 0);

  SetLength(Stream, 4 * Width * Height);
  SetLength(Back, Length(Stream));
  if indaEncoder(Picture.Row(0), @Stream[0], Length(Stream), @Written) = 0 then
    WriteLn(Length(Stream), ' bytes of pixels are ', Written, ' as a stream');
  if (indaDecoderSafe(@Stream[0], @Back[0], Written, Length(Back)) <> 0)
    or not CompareMem(@Back[0], Picture.Row(0), Length(Back)) then
    raise Exception.Create('the stream is not what it was made from');

  // A bitmap file of 32 bits a pixel, its rows downwards.
  FillChar(Head, SizeOf(Head), 0);
  Head.Name := 'BM';
  Head.Size := SizeOf(Head) + Length(Back);
  Head.Pixels := SizeOf(Head);
  Head.HeadSize := 40;
  Head.W := Width;
  Head.H := -Height;
  Head.Bits := 32 shl 16 or 1;
  FileName := 'evening.bmp';
  if ParamCount > 0 then
    FileName := ParamStr(1);
  Output_ := TFileStream.Create(FileName, fmCreate);
  Output_.WriteBuffer(Head, SizeOf(Head));
  Output_.WriteBuffer(Back[0], Length(Back));
  Output_.Free;
  WriteLn(FileName, ' written');
end.
