// Images that own their memory.
unit TessaroImages;

{$IFDEF FPC} {$MODE DELPHI} {$ENDIF}

interface

uses
  SysUtils, Tessaro;

type
  // An image record with its pixels, in one block of memory.
  TTessaroImage = class
  private
    FMemory: array of Byte;
    FWidth, FHeight: Integer;
    function Place(X, Y: Integer): PCardinal;
    function GetPixel(X, Y: Integer): Cardinal;
    procedure SetPixel(X, Y: Integer; Colour: Cardinal);
    function GetRecord: PImageRecord;
  public
    // A transparent black image.
    constructor Create(AWidth, AHeight: Integer);
    // What the functions of the library take.
    property Image: PImageRecord read GetRecord;
    property Width: Integer read FWidth;
    property Height: Integer read FHeight;
    // 0xAARRGGBB.
    property Pixels[X, Y: Integer]: Cardinal read GetPixel write SetPixel; default;
    // The pixels of a row; the next row follows.
    function Row(Y: Integer): PCardinal;
  end;

implementation

const
  HeadSize = 16;

constructor TTessaroImage.Create(AWidth, AHeight: Integer);
begin
  if (AWidth < 1) or (AWidth > 8191) or (AHeight < 1) or (AHeight > 32767) then
    raise EArgumentException.CreateFmt(
      'an image is 1..8191 pixels wide and 1..32767 high, not %d x %d: cut a larger one in parts', [AWidth, AHeight]);
  FWidth := AWidth;
  FHeight := AHeight;
  SetLength(FMemory, HeadSize + 4 * AWidth * AHeight);
  with PImageRecord(@FMemory[0])^ do
  begin
    dims_offset := SizeOf(TImageRecord);
    pixel_offset := HeadSize;
  end;
  with PImageDims(@FMemory[SizeOf(TImageRecord)])^ do
  begin
    width := AWidth;
    height := AHeight;
    pitch := 4 * AWidth;
  end;
end;

function TTessaroImage.Place(X, Y: Integer): PCardinal;
begin
  if (X < 0) or (X >= FWidth) or (Y < 0) or (Y >= FHeight) then
    raise EArgumentException.CreateFmt('no pixel at %d, %d', [X, Y]);
  Result := @FMemory[HeadSize + 4 * (Y * FWidth + X)];
end;

function TTessaroImage.Row(Y: Integer): PCardinal;
begin
  Result := Place(0, Y);
end;

function TTessaroImage.GetPixel(X, Y: Integer): Cardinal;
begin
  Result := Place(X, Y)^;
end;

procedure TTessaroImage.SetPixel(X, Y: Integer; Colour: Cardinal);
begin
  Place(X, Y)^ := Colour;
end;

function TTessaroImage.GetRecord: PImageRecord;
begin
  Result := PImageRecord(@FMemory[0]);
end;

end.
