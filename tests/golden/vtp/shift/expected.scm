Set( BUF 8192 )

Header( 1 55 54 9 8 )

VTPFileHeader

:cell00

VTPArea( 1 1 18 4 )
VTPLayer( 4 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

;Moved
   VTPPoly( 2 4 1 )
      VTPWPoint( 8599 5704 3 40 )
         VTPCPoint( 6 -6 )
         VTPCPoint( 294 405 )
         VTPCPoint( 6 -4 )


VTPIndexList( 1
        402 100 0
        )

VTPTextureList( 1
        1280 0 0 0 4
        )

VTPEnd

