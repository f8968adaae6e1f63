Set( BUF 8192 )

Header( 1 55 53 9 7 )

VTPFileHeader( 0x100 )

:cell00

VTPArea( 1 1 16 4 )
VTPLayer( 8 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

   VTPPoly( 2 4 0 )
      VTPPointXY( 8160 12240 )
      VTPPointXY( 8160 8160 )
      VTPPointXY( 12240 8160 )
      VTPPointXY( 12241 12241 )

:cell01

VTPArea( 1 1 17 4 )
VTPLayer( 8 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

   VTPPoly( 2 4 0 )
      VTPPointXY( 4080 8160 )
      VTPPointXY( 12240 8160 )
      VTPPointXY( 12241 12241 )
      VTPPointXY( 4079 12241 )

:cell02

VTPArea( 1 1 18 4 )
VTPLayer( 8 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

   VTPPoly( 2 4 0 )
      VTPPointXY( 4080 8160 )
      VTPPointXY( 8160 8160 )
      VTPPointXY( 8160 12240 )
      VTPPointXY( 4079 12241 )

:cell03

VTPArea( 1 1 16 5 )
VTPLayer( 8 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

   VTPPoly( 2 4 0 )
      VTPPointXY( 8160 12240 )
      VTPPointXY( 8160 4080 )
      VTPPointXY( 12241 4079 )
      VTPPointXY( 12241 12241 )

:cell04

VTPArea( 1 1 17 5 )
VTPLayer( 8 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

   VTPPoly( 2 4 0 )
      VTPPointXY( 4079 4079 )
      VTPPointXY( 12241 4079 )
      VTPPointXY( 12241 12241 )
      VTPPointXY( 4079 12241 )

:cell05

VTPArea( 1 1 18 5 )
VTPLayer( 8 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

   VTPPoly( 2 4 0 )
      VTPPointXY( 8160 4080 )
      VTPPointXY( 8160 12240 )
      VTPPointXY( 4079 12241 )
      VTPPointXY( 4079 4079 )

:cell06

VTPArea( 1 1 16 6 )
VTPLayer( 8 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

   VTPPoly( 2 4 0 )
      VTPPointXY( 12240 8160 )
      VTPPointXY( 8160 8160 )
      VTPPointXY( 8160 4080 )
      VTPPointXY( 12241 4079 )

:cell07

VTPArea( 1 1 17 6 )
VTPLayer( 8 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

   VTPPoly( 2 4 0 )
      VTPPointXY( 12240 8160 )
      VTPPointXY( 4080 8160 )
      VTPPointXY( 4079 4079 )
      VTPPointXY( 12241 4079 )

:cell08

VTPArea( 1 1 18 6 )
VTPLayer( 8 1 1 0 )
VTPTexID( 0 0 )
VTPPolyCount( 1 )

   VTPPoly( 2 4 0 )
      VTPPointXY( 8160 4080 )
      VTPPointXY( 8160 8160 )
      VTPPointXY( 4080 8160 )
      VTPPointXY( 4079 4079 )

VTPIndexList( 9
        400 100 0
        401 100 0
        402 100 0
        400 101 0
        401 101 0
        402 101 0
        400 102 0
        401 102 0
        402 102 0
        )

VTPTextureList( 1
        1004 0 0 0 4
        )

VTPEnd

