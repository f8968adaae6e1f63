Set( BUF 8192 )

Header( 1 0 -35 0 -71 )

VTPFileHeader

:cell00

VTPArea( 1 1 9 0 )
VTPLayer( -3 0 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

;Far south
   VTPPoly( 2 6 1 )
      VTPWPoint( 5493 7561 1 15 )
         VTPCPoint( 2 2 )
      VTPWPoint( 4624 8722 0 )
      VTPWPoint( 7235 11043 0 )
      VTPWPoint( 1231889 -767674 1 )
         VTPCPoint( -2 -2 )


VTPIndexList( 1
        233 352 0
        )

VTPTextureList( 1
        1280 0 0 0 4
        )

VTPEnd

