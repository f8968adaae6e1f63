Set( BUF 8192 )

Header( 1 55 54 9 7 )

VTPFileHeader

:cell00

VTPArea( 1 1 16 4 )
VTPLayer( 9 1 1 0 )
VTPTexID( 2 0 )
VTPPolyCount( 1 )

;North-west
   VTPPoly( 2 4 1 )
      VTPWPoint( 5000 5001 3 12 )
         VTPCPoint( 0 -2 )
         VTPCPoint( 500 2 )
         VTPCPoint( 0 -2 )


:cell01

VTPArea( 1 1 17 4 )
VTPLayer( 7 1 1 0 )
VTPTexID( 2 0 )
VTPPolyCount( 1 )

;Straﬂe
   VTPPoly( 2 4 1 )
      VTPWPoint( 4999 5000 3 12 )
         VTPCPoint( 2 0 )
         VTPCPoint( -2 500 )
         VTPCPoint( 2 0 )


:cell02

VTPArea( 2 1 17 5 )
VTPLayer( 9 1 3 0 )
VTPTexID( 0 0 )
VTPPolyCount( 2 )

;South-east first
   VTPPoly( 2 4 1 )
      VTPWPoint( 7999 8001 3 12 )
         VTPCPoint( 2 -2 )
         VTPCPoint( 298 402 )
         VTPCPoint( 2 -2 )

;Same texture as the first
   VTPPoly( 2 4 1 )
      VTPWPoint( 8999 8001 3 12 )
         VTPCPoint( 2 -2 )
         VTPCPoint( 298 402 )
         VTPCPoint( 2 -2 )

VTPTexID( 3 0 )
VTPPolyCount( 1 )

;Back on layer 9
   VTPPoly( 2 4 1 )
      VTPWPoint( 5999 8001 3 12 )
         VTPCPoint( 2 -2 )
         VTPCPoint( 298 402 )
         VTPCPoint( 2 -2 )

VTPTexID( 4 0 )
VTPPolyCount( 1 )

;Case counts
   VTPPoly( 2 4 1 )
      VTPWPoint( 5999 9001 3 12 )
         VTPCPoint( 2 -2 )
         VTPCPoint( 298 402 )
         VTPCPoint( 2 -2 )

VTPLayer( 4 1 1 0 )
VTPTexID( 2 0 )
VTPPolyCount( 1 )

;
   VTPPoly( 2 4 1 )
      VTPWPoint( 6999 8001 3 12 )
         VTPCPoint( 2 -2 )
         VTPCPoint( 298 402 )
         VTPCPoint( 2 -2 )


VTPIndexList( 3
        400 100 0
        401 100 0
        401 101 0
        )

VTPTextureList( 5
        "a.bmp;b.bmp" 1 0 0 4 
        lost 0 0 0 4
        1280 0 0 0 4
        Road.bmp 1 0 0 4
        ROAD.BMP 1 0 0 4
        )

VTPEnd

