Set( BUF 8192 )

Header( 1 0 -35 0 -71 )

VTPFileHeader

:cell00

VTPArea( 1 1 31 1 )
VTPLayer( 60 0 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

;Near the equator
   VTPPoly( 2 4 1 )
      VTPWPoint( 7887 7524 3 15 )
         VTPCPoint( 2 2 )
         VTPCPoint( -89 114 )
         VTPCPoint( 2 2 )


:cell01

VTPArea( 1 1 9 0 )
VTPLayer( 60 0 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

;Far south
   VTPPoly( 2 5 1 )
      VTPWPoint( 5493 7561 1 15 )
         VTPCPoint( 2 2 )
      VTPWPoint( 4624 8722 0 )
      VTPWPoint( 7234 11044 1 )
         VTPCPoint( 2 -2 )


VTPIndexList( 2
        383 257 0
        233 352 0
        )

VTPTextureList( 1
        1280 0 0 0 4
        )

VTPEnd

