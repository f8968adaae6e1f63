Set( BUF 8192 )

Header( 1 55 54 8 7 )

VTPFileHeader

:cell00

VTPArea( 1 1 16 4 )
VTPLayer( 4 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

;Steps
   VTPPoly( 2 12 1 )
      VTPWPoint( 5000 6000 2 )
         VTPCPoint( 0 0 )
         VTPCPoint( 1022 0 )
      VTPWPoint( 7045 6000 1 )
         VTPCPoint( 0 1022 )
      VTPWPoint( 7045 8045 1 )
         VTPCPoint( -1022 0 )
      VTPWPoint( 5000 8045 1 )
         VTPCPoint( 0 -1022 )
      VTPWPoint( 5000 6000 2 )
         VTPCPoint( 1 1 )
         VTPCPoint( 0 0 )


VTPIndexList( 1
        400 100 0
        )

VTPTextureList( 1
        1280 0 0 0 4
        )

VTPEnd

