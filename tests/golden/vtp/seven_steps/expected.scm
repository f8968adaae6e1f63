Set( BUF 8192 )

Header( 1 55 54 8 7 )

VTPFileHeader

:cell00

VTPArea( 1 1 16 4 )
VTPLayer( 4 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 2 )

;Long
   VTPPoly( 2 19 1 )
      VTPWPoint( 5000 6001 7 10 )
         VTPCPoint( 0 -2 )
         VTPCPoint( 100 21 )
         VTPCPoint( 100 -20 )
         VTPCPoint( 100 20 )
         VTPCPoint( 100 -20 )
         VTPCPoint( 100 20 )
         VTPCPoint( 100 -20 )
      VTPWPoint( 5700 6020 7 )
         VTPCPoint( 100 -20 )
         VTPCPoint( 100 20 )
         VTPCPoint( 100 -20 )
         VTPCPoint( 100 20 )
         VTPCPoint( 100 -20 )
         VTPCPoint( 100 20 )
         VTPCPoint( 100 -20 )
      VTPWPoint( 6500 6020 2 )
         VTPCPoint( 100 -19 )
         VTPCPoint( 0 -2 )

;Eight points end on a full group
   VTPPoly( 2 8 1 )
      VTPWPoint( 5000 7001 7 10 )
         VTPCPoint( 0 -2 )
         VTPCPoint( 100 1 )
         VTPCPoint( 100 0 )
         VTPCPoint( 100 0 )
         VTPCPoint( 100 0 )
         VTPCPoint( 100 1 )
         VTPCPoint( 0 -2 )


VTPIndexList( 1
        400 100 0
        )

VTPTextureList( 1
        1280 0 0 0 4
        )

VTPEnd

