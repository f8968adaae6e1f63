Set( BUF 8192 )

Header( 1 55 54 9 7 )

VTPFileHeader( 0x100 )

:cell00

VTPArea( 1 1 16 4 )
VTPLayer( 8 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

   VTPPoly( 2 4 0 )
      VTPPointXY( 11240 12240 )
      VTPPointXY( 11240 11240 )
      VTPPointXY( 12240 11240 )
      VTPPointXY( 12241 12241 )

:cell01

VTPArea( 1 1 17 4 )
VTPLayer( 8 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

   VTPPoly( 2 4 0 )
      VTPPointXY( 4080 11240 )
      VTPPointXY( 6080 11240 )
      VTPPointXY( 5080 12240 )
      VTPPointXY( 4079 12241 )

:cell02

VTPArea( 1 1 16 5 )
VTPLayer( 8 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

   VTPPoly( 2 4 0 )
      VTPPointXY( 12240 5080 )
      VTPPointXY( 11240 6080 )
      VTPPointXY( 11240 4080 )
      VTPPointXY( 12241 4079 )

:cell03

VTPArea( 1 1 17 5 )
VTPLayer( 8 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

   VTPPoly( 2 3 0 )
      VTPPointXY( 5080 4080 )
      VTPPointXY( 4080 5080 )
      VTPPointXY( 4079 4079 )

VTPIndexList( 4
        400 100 0
        401 100 0
        400 101 0
        401 101 0
        )

VTPTextureList( 1
        "wood.bmp" 2 0 0 4
        )

VTPEnd

