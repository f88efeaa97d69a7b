"""A library as it was written before files were UTF-8: version 70, in the system's 8-bit code page,
with the line ends of Windows and without the fields that came later."""

PROPERTIES = "PROP:Bauteile%20für%20die%20Werkstatt%20–%20Stand%20März%201998"

RECORDS = """\
+TARSL_LIB_V.1.0
VER:70
{properties}
+PTN,N:R-5W,X:41,Y:21
+PG,W:1,S:0,F:-1,N:4,X:6,Y:4,X:34,Y:4,X:34,Y:16,X:6,Y:16,-PG
+L,W:1,S:0,X:0,Y:10,X:6,Y:10,-L
+L,W:1,S:0,X:34,Y:10,X:40,Y:10,-L
+TX,X:20,Y:10,A:10,D:1,S:5%20W,FN:Arial,FS:8,FF:BIUS,-TX
-PTN
+COMP,N:R-5W
X:4,Y:2,B:1
R:R
P:R-5W
+PIN,N:,L:L1,T:Sm,M:1,-PIN
+PIN,N:,L:R1,T:Sm,M:2,-PIN
NOTE:Drahtwiderstand%205%20W%2C%20±5%25%2C%20-55%20°C…155%20°C,MFR:Vitrohm,MFRPN:,PKG:,-COMP
+PTN,N:C-10U,X:41,Y:21
+L,W:1,S:0,X:0,Y:10,X:17,Y:10,-L
+L,W:1,S:0,X:23,Y:10,X:40,Y:10,-L
+L,W:2,S:0,X:17,Y:2,X:17,Y:18,-L
+L,W:2,S:0,X:23,Y:2,X:23,Y:18,-L
+TX,X:20,Y:-2,A:2,D:1,S:10%20µF,FN:,FS:10,FF:,-TX
-PTN
+COMP,N:C-10U
X:4,Y:2,B:1
R:C
P:C-10U
+PIN,N:,L:L1,T:Sm,M:1,-PIN
+PIN,N:,L:R1,T:Sm,M:2,-PIN
NOTE:Condensateur%20à%20électrolyte%20sec%2C%20qualité%20«longue%20durée»,MFR:,MFRPN:,PKG:Ø%205%20mm,-COMP
+COMP,N:UA741
X:6,Y:6,B:1
TYPE:GEN,FB:0
R:IC
+PIN,N:+,L:L2,T:,M:3,-PIN
+PIN,N:-,L:L4,T:,M:2,-PIN
+PIN,N:OUT,L:R3,T:,M:6,-PIN
+PIN,N:V+,L:T3,T:,M:7,-PIN
+PIN,N:V-,L:B3,T:,M:4,-PIN
NOTE:µA741:%20Operationsverstärker%2C%20±15%20V,MFR:,MFRPN:µA741CN,PKG:DIP8,-COMP
+ALIAS,A:LM741,N:UA741,-ALIAS
-TARSL_LIB_V.1.0
"""


def content():
    return RECORDS.format(properties=PROPERTIES).replace("\n", "\r\n")
