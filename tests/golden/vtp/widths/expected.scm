Set( BUF 8192 )

Header( 1 55 54 8 7 )

VTPFileHeader

:cell00

VTPArea( 1 1 16 4 )
VTPLayer( 4 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 2 )

;Widths
   VTPPoly( 2 10 1 )
      VTPWPoint( 5000 6001 7 10 )
         VTPCPoint( 0 -2 )
         VTPCPoint( 100 1 )
         VTPCPoint( 100 0 20 )
         VTPCPoint( 100 0 )
         VTPCPoint( 100 0 30 )
         VTPCPoint( 100 0 )
         VTPCPoint( 100 0 255 )
      VTPWPoint( 5700 6000 1 )
         VTPCPoint( 0 0 )

;Starts with 0
   VTPPoly( 2 5 1 )
      VTPWPoint( 5000 7000 4 )
         VTPCPoint( 0 0 )
         VTPCPoint( 100 100 )
         VTPCPoint( 100 -100 3 )
         VTPCPoint( 0 0 )


VTPIndexList( 1
        400 100 0
        )

VTPTextureList( 1
        1280 0 0 0 4
        )

VTPEnd

