Set( BUF 8192 )

Header( 1 55 54 8 7 )

VTPFileHeader

:cell00

VTPArea( 1 1 16 4 )
VTPLayer( 4 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

;Short road
   VTPPoly( 2 4 1 )
      VTPWPoint( 4997 6003 3 40 )
         VTPCPoint( 6 -6 )
         VTPCPoint( 294 405 )
         VTPCPoint( 6 -4 )


VTPIndexList( 1
        400 100 0
        )

VTPTextureList( 1
        1280 0 0 0 4
        )

VTPEnd

