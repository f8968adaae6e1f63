Set( BUF 8192 )

Header( 1 48 47 9 8 )

VTPFileHeader

:cell00

VTPArea( 1 1 17 24 )
VTPLayer( 13 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

;a road (one of many) "quoted
   VTPPoly( 2 4 1 )
      VTPWPoint( 5000 6000 3 12 )
         VTPCPoint( 12 -7 )
         VTPCPoint( 1022 -1022 13 )
         VTPCPoint( -1 0 )


VTPIndexList( 1
        401 120 0
        )

VTPTextureList( 1
        153 0 0 0 4
        )

VTPEnd

