Set( BUF 8192 )

Header( 1 55 54 9 7 )

VTPFileHeader

:cell00

VTPArea( 1 1 16 4 )
VTPLayer( 7 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

;Over the border
   VTPPoly( 2 5 1 )
      VTPWPoint( 11000 8001 4 12 )
         VTPCPoint( 0 -2 )
         VTPCPoint( 800 101 )
         VTPCPoint( 760 101 )
         VTPCPoint( 0 -2 )


:cell01

VTPArea( 1 1 17 4 )
VTPLayer( 7 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 2 )

;Over the border
   VTPPoly( 2 6 1 )
      VTPWPoint( 3640 8101 5 12 )
         VTPCPoint( 0 -2 )
         VTPCPoint( 760 101 )
         VTPCPoint( 800 100 )
         VTPCPoint( 800 1 )
         VTPCPoint( 0 -2 )

;Beside it
   VTPPoly( 2 4 1 )
      VTPWPoint( 8999 9001 3 12 )
         VTPCPoint( 2 -2 )
         VTPCPoint( 298 402 )
         VTPCPoint( 2 -2 )


VTPIndexList( 2
        400 100 0
        401 100 0
        )

VTPTextureList( 1
        main_road.bmp 1 0 0 4
        )

VTPEnd

