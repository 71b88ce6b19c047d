// Replays the recorded calls, and compares results and memory: replay CALLS
program Replay;

{$MODE OBJFPC} {$H+}

uses
  SysUtils, Classes, Tessaro;

type
  TArgument = record
    Memory: Pointer;
    Number: Int64;
    Real: Double;
  end;
  TBytesOfBlocks = array of RawByteString;

const
  Fence = #$A5#$A5#$A5#$A5#$A5#$A5#$A5#$A5;

{$I calls.inc}

function Word_(var Line: string): string;
var
  At: Integer;
begin
  At := Pos(' ', Line);
  if At = 0 then
    At := Length(Line) + 1;
  Result := Copy(Line, 1, At - 1);
  Delete(Line, 1, At);
end;

function MemoryOf(Line: string): RawByteString;
var
  One: string;
  I: Integer;
  Part: RawByteString;
begin
  Result := '';
  while Line <> '' do
  begin
    One := Word_(Line);
    if Pos('*', One) = 3 then
      Part := StringOfChar(AnsiChar(StrToInt('$' + Copy(One, 1, 2))), StrToInt(Copy(One, 4, 12)))
    else
    begin
      SetLength(Part, Length(One) div 2);
      for I := 1 to Length(Part) do
        Part[I] := AnsiChar(StrToInt('$' + Copy(One, 2 * I - 1, 2)));
    end;
    Result := Result + Part;
  end;
end;

function ToSingle(Bits: Cardinal): Single;
begin
  Move(Bits, Result, 4);
end;

function ToDouble(Bits: QWord): Double;
begin
  Move(Bits, Result, 8);
end;

var
  Lines: TStringList;
  Name, Line, Kind, Wrong: string;
  Blocks, Expected: TBytesOfBlocks;
  Given: array of TArgument;
  Sounds: array [0..7] of TWaveBuffer;
  At, B, SoundCount, Made, Failed: Integer;
  Outcome: Int64;

procedure Finish;
var
  I: Integer;
begin
  if Name = '' then
    Exit;
  for I := 0 to High(Blocks) do
    if Blocks[I] <> Expected[I] then
      Wrong := Wrong + Format('block %d differs; ', [I]);
  Inc(Made);
  if Wrong <> '' then
  begin
    Inc(Failed);
    WriteLn('call ', Made, ', ', Name, ': ', Wrong);
  end;
end;

procedure Give(Memory: Pointer; Number: Int64; Real: Double);
begin
  SetLength(Given, Length(Given) + 1);
  Given[High(Given)].Memory := Memory;
  Given[High(Given)].Number := Number;
  Given[High(Given)].Real := Real;
end;

begin
  Lines := TStringList.Create;
  Lines.LoadFromFile(ParamStr(1));
  if Lines[0] <> 'tessaro calls 1' then
    raise Exception.Create('not a set of calls');
  for At := 1 to Lines.Count - 1 do
  begin
    Line := Lines[At];
    Kind := Word_(Line);
    if Kind = 'call' then
    begin
      Finish;
      Name := Line;
      Wrong := '';
      Blocks := nil;
      Given := nil;
      SoundCount := 0;
    end
    else if Kind = 'block' then
    begin
      Word_(Line);
      SetLength(Blocks, Length(Blocks) + 1);
      Blocks[High(Blocks)] := MemoryOf(Line) + Fence;
      UniqueString(Blocks[High(Blocks)]);
    end
    else if (Kind = 'image') or (Kind = 'memory') then
    begin
      B := StrToInt(Word_(Line));
      Give(@Blocks[B][1 + StrToInt(Line)], 0, 0);
    end
    else if Kind = 'sound' then
    begin
      B := StrToInt(Word_(Line));
      with Sounds[SoundCount] do
      begin
        format := StrToInt(Word_(Line));
        count := StrToInt(Line);
        data := @Blocks[B][1];
      end;
      Give(@Sounds[SoundCount], 0, 0);
      Inc(SoundCount);
    end
    else if Kind = 'number' then
      Give(nil, StrToInt64(Line), 0)
    else if Kind = 'float' then
      Give(nil, 0, ToSingle(StrToQWord('$' + Line)))
    else if Kind = 'double' then
      Give(nil, 0, ToDouble(StrToQWord('$' + Line)))
    else if Kind = 'result' then
    begin
      SetLength(Expected, Length(Blocks));
      for B := 0 to High(Blocks) do
      begin
        Expected[B] := Blocks[B];
        UniqueString(Expected[B]);
      end;
      Outcome := Make(Name, Given);
      Word_(Line);
      if Outcome <> StrToInt64(Line) then
        Wrong := Format('result %d, recorded %s; ', [Outcome, Line]);
    end
    else if Kind = 'after' then
    begin
      B := StrToInt(Word_(Line));
      Expected[B] := MemoryOf(Line) + Fence;
    end
    else if Kind = 'any' then
      Expected[StrToInt(Line)] := Blocks[StrToInt(Line)];
  end;
  Finish;
  WriteLn(Made, ' calls replayed, ', Failed, ' came out otherwise');
  if (Failed > 0) or (Made = 0) then
    Halt(1);
end.
