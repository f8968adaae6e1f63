Set( BUF 8192 )

Header( 1 55 54 9 7 )

VTPFileHeader

:cell00

VTPArea( 1 1 16 3 )
VTPLayer( 4 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

;Starts outside, ends outside
   VTPPoly( 2 4 1 )
      VTPWPoint( 7999 12000 3 12 )
         VTPCPoint( 2 0 )
         VTPCPoint( -2 660 )
         VTPCPoint( 2 0 )


:cell01

VTPArea( 1 1 16 4 )
VTPLayer( 4 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 5 )

;Two vertices, one Cell between
   VTPPoly( 2 4 1 )
      VTPWPoint( 11000 8001 1 12 )
         VTPCPoint( 0 -2 )
      VTPWPoint( 21320 8001 1 )
         VTPCPoint( 0 -2 )

;Last vertex alone in its Cell
   VTPPoly( 2 5 1 )
      VTPWPoint( 10000 9001 2 12 )
         VTPCPoint( 0 -2 )
         VTPCPoint( 1000 1 )
      VTPWPoint( 13160 9001 1 )
         VTPCPoint( 0 -2 )

;To and fro
   VTPPoly( 2 4 1 )
      VTPWPoint( 11500 10001 1 12 )
         VTPCPoint( 0 -2 )
      VTPWPoint( 12660 10101 1 )
         VTPCPoint( 0 -2 )

;To and fro
   VTPPoly( 2 5 1 )
      VTPWPoint( 12660 10099 1 12 )
         VTPCPoint( 0 2 )
      VTPWPoint( 11500 10200 0 )
      VTPWPoint( 12660 10301 1 )
         VTPCPoint( 0 -2 )

;Starts outside, ends outside
   VTPPoly( 2 6 1 )
      VTPWPoint( 7999 3840 5 12 )
         VTPCPoint( 2 0 )
         VTPCPoint( -1 660 )
         VTPCPoint( 100 100 )
         VTPCPoint( 101 -760 )
         VTPCPoint( -2 0 )


:cell02

VTPArea( 1 1 17 4 )
VTPLayer( 4 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 2 )

;To and fro
   VTPPoly( 2 5 1 )
      VTPWPoint( 3340 10001 1 12 )
         VTPCPoint( 0 -2 )
      VTPWPoint( 4500 10100 0 )
      VTPWPoint( 3340 10199 1 )
         VTPCPoint( 0 2 )

;To and fro
   VTPPoly( 2 5 1 )
      VTPWPoint( 3340 10201 1 12 )
         VTPCPoint( 0 -2 )
      VTPWPoint( 4500 10300 2 )
         VTPCPoint( 99 101 )
         VTPCPoint( 2 -2 )


:cell03

VTPArea( 1 1 18 4 )
VTPLayer( 4 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

;Two vertices, one Cell between
   VTPPoly( 2 4 1 )
      VTPWPoint( -5320 8001 1 12 )
         VTPCPoint( 0 -2 )
      VTPWPoint( 5000 8001 1 )
         VTPCPoint( 0 -2 )


VTPIndexList( 4
        400 99 0
        400 100 0
        401 100 0
        402 100 0
        )

VTPTextureList( 1
        1280 0 0 0 4
        )

VTPEnd

