Set( BUF 8192 )

Header( 1 55 54 8 7 )

VTPFileHeader

:cell00

VTPArea( 1 1 15 3 )
VTPLayer( 4 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

;Through the corner
   VTPPoly( 2 4 1 )
      VTPWPoint( 10498 10935 1 8 )
         VTPCPoint( 2 -2 )
      VTPWPoint( 12239 12241 1 )
         VTPCPoint( 2 -2 )


:cell01

VTPArea( 1 1 15 4 )
VTPLayer( 4 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

;Both sides of the border, one place
   VTPPoly( 2 4 1 )
      VTPWPoint( 12240 9000 3 8 )
         VTPCPoint( 0 0 )
         VTPCPoint( 0 0 )
         VTPCPoint( 0 0 )


:cell02

VTPArea( 1 1 16 4 )
VTPLayer( 4 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 3 )

;Through the corner
   VTPPoly( 2 5 1 )
      VTPWPoint( 2338 2775 1 8 )
         VTPCPoint( 2 -2 )
      VTPWPoint( 4080 4080 0 )
      VTPWPoint( 5821 5096 1 )
         VTPCPoint( 0 -2 )

;Along the border
   VTPPoly( 2 5 1 )
      VTPWPoint( 4428 4081 1 8 )
         VTPCPoint( 0 -2 )
      VTPWPoint( 5821 4080 0 )
      VTPWPoint( 7213 4081 1 )
         VTPCPoint( 0 -2 )

;Both sides of the border, one place
   VTPPoly( 2 4 1 )
      VTPWPoint( 4080 9000 3 8 )
         VTPCPoint( 0 0 )
         VTPCPoint( 0 0 )
         VTPCPoint( 0 0 )


VTPIndexList( 3
        399 99 0
        399 100 0
        400 100 0
        )

VTPTextureList( 1
        1280 0 0 0 4
        )

VTPEnd

