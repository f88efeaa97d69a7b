"""Micro-controllers, memories and what stands beside them.

A pin is named after all its functions, divided by "/"; a "?" in front of one keeps it off the
sheet until somebody shows it.
"""

from layout import box

MICROCHIP = "Microchip"
ST = "STMicroelectronics"


def components():
    return [atmega328p(), stm32f103r8(), atmega2560(), *small_controllers(), *classics(), *memories()]


def numbered(first, names):
    """Rows for pins in the order of their numbers."""
    return "\n".join(f"{first + index} {name}" for index, name in enumerate(names.split()))


def downward(first, names):
    """Rows for pins whose numbers fall."""
    return "\n".join(f"{first - index} {name}" for index, name in enumerate(names.split()))


def atmega328p():
    return box(
        "ATMEGA328P-PU",
        left=f"""
            1 PC6/{{RESET}}
            .
            9 PB6/XTAL1
            10 PB7/XTAL2
            .
            21 AREF
            .
            {numbered(23, "PC0/ADC0 PC1/ADC1 PC2/ADC2 PC3/ADC3 PC4/ADC4/SDA PC5/ADC5/SCL")}
        """,
        right=f"""
            {numbered(14, "PB0/ICP1 PB1/OC1A PB2/{SS}/OC1B PB3/MOSI/OC2A PB4/MISO PB5/SCK")}
            .
            {numbered(2, "PD0/RXD PD1/TXD PD2/INT0 PD3/INT1/OC2B PD4/T0/XCK")}
            11 PD5/T1/OC0B
            12 PD6/AIN0/OC0A
            13 PD7/AIN1
        """,
        top="7 VCC\n.\n20 AVCC",
        bottom="8 GND\n.\n22 GND",
        maker=MICROCHIP,
        part="ATmega328P-PU",
        package="DIP28",
        note="8-bit AVR micro-controller, 32 KB flash, 2 KB SRAM, 20 MHz",
    )


def stm32f103r8():
    return box(
        "STM32F103R8T6",
        left=f"""
            7 {{NRST}}
            60 BOOT0
            .
            5 PD0/OSC_IN
            6 PD1/OSC_OUT
            3 PC14/OSC32_IN
            4 PC15/OSC32_OUT
            2 PC13/TAMPER
            .
            {numbered(8, "PC0/ADC10 PC1/ADC11 PC2/ADC12 PC3/ADC13")}
            24 PC4/ADC14
            25 PC5/ADC15
            {numbered(37, "PC6 PC7 PC8 PC9")}
            {numbered(51, "PC10 PC11 PC12")}
            54 PD2/TIM3_ETR
            .
            .
            {numbered(33, "PB12/SPI2_NSS PB13/SPI2_SCK PB14/SPI2_MISO PB15/SPI2_MOSI")}
            .
            12 VSSA
            13 VDDA
        """,
        right=f"""
            14 PA0/WKUP/ADC0
            15 PA1/ADC1
            16 PA2/USART2_TX/?ADC2
            17 PA3/USART2_RX/?ADC3
            20 PA4/SPI1_NSS/?ADC4
            21 PA5/SPI1_SCK/?ADC5
            22 PA6/SPI1_MISO/?ADC6
            23 PA7/SPI1_MOSI/?ADC7
            41 PA8/MCO
            42 PA9/USART1_TX/?TIM1_CH2
            43 PA10/USART1_RX/?TIM1_CH3
            44 PA11/USBDM/?CANRX
            45 PA12/USBDP/?CANTX
            46 PA13/JTMS/SWDIO
            49 PA14/JTCK/SWCLK
            50 PA15/JTDI
            .
            26 PB0/ADC8
            27 PB1/ADC9
            28 PB2/BOOT1
            55 PB3/JTDO
            56 PB4/{{JNTRST}}
            57 PB5
            58 PB6/I2C1_SCL
            59 PB7/I2C1_SDA
            61 PB8/TIM4_CH3
            62 PB9/TIM4_CH4
            29 PB10/I2C2_SCL
            30 PB11/I2C2_SDA
        """,
        top="1 VBAT\n.\n32 VDD_1\n48 VDD_2\n64 VDD_3\n19 VDD_4",
        bottom=".\n.\n31 VSS_1\n47 VSS_2\n63 VSS_3\n18 VSS_4",
        maker=ST,
        part="STM32F103R8T6",
        package="LQFP64",
        note="32-bit micro-controller, Cortex-M3, 72 MHz, 64 KB flash, 20 KB SRAM.\r\n"
        "Alternate functions that are seldom used are hidden; show them pin by pin.",
    )


def atmega2560():
    port_a = " ".join(f"PA{bit}/AD{bit}" for bit in range(7, -1, -1))
    port_c = " ".join(f"PC{bit}/A{bit + 8}" for bit in range(8))
    port_k = " ".join(f"PK{bit}/ADC{bit + 8}" for bit in range(7, -1, -1))
    return box(
        "ATMEGA2560-16AU",
        left=f"""
            30 {{RESET}}
            33 XTAL2
            34 XTAL1
            98 AREF
            .
            {numbered(71, port_a)}
            .
            {numbered(53, port_c)}
            .
            {numbered(94, "PF3/ADC3 PF2/ADC2 PF1/ADC1 PF0/ADC0")}
            {numbered(90, "PF7/ADC7/TDI PF6/ADC6/TDO PF5/ADC5/TMS PF4/ADC4/TCK")}
            .
            {numbered(82, port_k)}
            .
            {numbered(51, "PG0/{WR} PG1/{RD}")}
            70 PG2/ALE
            28 PG3/TOSC2
            29 PG4/TOSC1
            1 PG5/OC0B
        """,
        right=f"""
            {numbered(19, "PB0/{SS} PB1/SCK PB2/MOSI PB3/MISO PB4/OC2A PB5/OC1A PB6/OC1B")}
            26 PB7/OC0A/?OC1C
            .
            {numbered(43, "PD0/SCL/?INT0 PD1/SDA/?INT1 PD2/RXD1/?INT2 PD3/TXD1/?INT3")}
            {numbered(47, "PD4/ICP1 PD5/XCK1 PD6/T1 PD7/T0")}
            .
            {numbered(2, "PE0/RXD0 PE1/TXD0 PE2/XCK0/?AIN0 PE3/OC3A/?AIN1")}
            {numbered(6, "PE4/OC3B/?INT4 PE5/OC3C/?INT5 PE6/T3/?INT6 PE7/ICP3/?CLKO")}
            .
            {numbered(12, "PH0/RXD2 PH1/TXD2 PH2/XCK2 PH3/OC4A PH4/OC4B PH5/OC4C PH6/OC2B")}
            27 PH7/T4
            .
            {numbered(63, "PJ0/RXD3 PJ1/TXD3 PJ2/XCK3 PJ3 PJ4 PJ5 PJ6")}
            79 PJ7
            .
            {numbered(35, "PL0/ICP4 PL1/ICP5 PL2/T5 PL3/OC5A PL4/OC5B PL5/OC5C PL6 PL7")}
        """,
        top="100 AVCC\n.\n10 VCC\n31 VCC\n61 VCC\n80 VCC",
        bottom=".\n.\n11 GND\n32 GND\n62 GND\n81 GND\n99 GND",
        maker=MICROCHIP,
        part="ATmega2560-16AU",
        package="TQFP100",
        note="8-bit AVR micro-controller, 256 KB flash, 8 KB SRAM, 16 MHz",
    )


def small_controllers():
    return [
        box(
            "ATTINY85-20PU",
            left="5 PB0/MOSI/?OC0A\n6 PB1/MISO/?OC0B\n7 PB2/SCK/?ADC1",
            right="1 PB5/{RESET}\n3 PB4/ADC2\n2 PB3/ADC3",
            top="8 VCC",
            bottom="4 GND",
            maker=MICROCHIP,
            part="ATtiny85-20PU",
            package="DIP8",
            note="8-bit AVR micro-controller, 8 KB flash, 20 MHz",
        ),
        box(
            "PIC16F84A",
            left="4 {MCLR}\n.\n16 OSC1/CLKIN\n15 OSC2/CLKOUT\n.\n17 RA0\n18 RA1\n1 RA2\n2 RA3\n"
            "3 RA4/T0CKI",
            right="6 RB0/INT\n" + numbered(7, "RB1 RB2 RB3 RB4 RB5 RB6 RB7"),
            top="14 VDD",
            bottom="5 VSS",
            maker=MICROCHIP,
            part="PIC16F84A-20/P",
            package="DIP18",
            note="8-bit micro-controller, 1 K words of flash",
        ),
        box(
            "MSP430G2553IN20",
            left=numbered(2, "P1.0 P1.1/UCA0RXD P1.2/UCA0TXD P1.3 P1.4 P1.5/UCB0CLK")
            + "\n14 P1.6/UCB0SCL\n15 P1.7/UCB0SDA\n.\n16 {RST}/NMI/?SBWTDIO\n17 TEST/?SBWTCK",
            right=numbered(8, "P2.0 P2.1 P2.2 P2.3 P2.4 P2.5") + "\n.\n19 XIN/P2.6\n18 XOUT/P2.7",
            top="1 DVCC",
            bottom="20 DVSS",
            maker="Texas Instruments",
            part="MSP430G2553IN20",
            package="DIP20",
            note="16-bit micro-controller, 16 KB flash, 512 bytes of SRAM",
        ),
    ]


def classics():
    port_3 = "P3.0/RXD P3.1/TXD P3.2/{INT0} P3.3/{INT1} P3.4/T0 P3.5/T1 P3.6/{WR} P3.7/{RD}"
    return [
        box(
            "AT89C51",
            left=f"""
                9 RST
                19 XTAL1
                18 XTAL2
                .
                31 {{EA}}/VPP
                30 ALE/{{PROG}}
                29 {{PSEN}}
                .
                {numbered(1, "P1.0 P1.1 P1.2 P1.3 P1.4 P1.5 P1.6 P1.7")}
            """,
            right=f"""
                {downward(39, " ".join(f"P0.{bit}/AD{bit}" for bit in range(8)))}
                .
                {numbered(21, " ".join(f"P2.{bit}/A{bit + 8}" for bit in range(8)))}
                .
                {numbered(10, port_3)}
            """,
            top="40 VCC",
            bottom="20 GND",
            maker=MICROCHIP,
            part="AT89C51-24PC",
            package="DIP40",
            note="8-bit micro-controller of the 8051 family, 4 KB flash",
            aliases=("8051",),
        ),
        box(
            "Z80",
            left="""
                6 CLK C
                26 {RESET} N
                .
                16 {INT} N
                17 {NMI} N
                24 {WAIT} N
                25 {BUSREQ} N
                .
                23 {BUSACK} N
                18 {HALT} N
                27 {M1} N
                28 {RFSH} N
                19 {MREQ} N
                20 {IORQ} N
                21 {RD} N
                22 {WR} N
            """,
            right=f"""
                {numbered(30, " ".join(f"A{bit}" for bit in range(11)))}
                {numbered(1, " ".join(f"A{bit}" for bit in range(11, 16)))}
                .
                14 D0
                15 D1
                12 D2
                8 D3
                7 D4
                9 D5
                10 D6
                13 D7
            """,
            top="11 VCC",
            bottom="29 GND",
            maker="Zilog",
            part="Z84C0006PEG",
            package="DIP40",
            note="8-bit processor",
        ),
    ]


def memories():
    address = """
        10 A0
        9 A1
        8 A2
        7 A3
        6 A4
        5 A5
        4 A6
        3 A7
        25 A8
        24 A9
        21 A10
        23 A11
        2 A12
        26 A13
    """
    data = numbered(11, "D0 D1 D2") + "\n" + numbered(15, "D3 D4 D5 D6 D7")
    return [
        box(
            "62256",
            left=address + "1 A14",
            right=data + "\n.\n.\n.\n20 {CE} N\n22 {OE} N\n27 {WE} N",
            top="28 VCC",
            bottom="14 GND",
            package="DIP28",
            note="32 K x 8 static RAM",
            aliases=("HM62256B", "CY62256N"),
        ),
        box(
            "27C256",
            left=address + "27 A14",
            right=data + "\n.\n.\n.\n20 {CE} N\n22 {OE} N\n.\n1 VPP",
            top="28 VCC",
            bottom="14 GND",
            maker=ST,
            part="M27C256B",
            package="DIP28",
            note="32 K x 8 EPROM",
        ),
        box(
            "24LC02B",
            left="1 A0\n2 A1\n3 A2",
            right="6 SCL\n5 SDA\n7 WP",
            top="8 VCC",
            bottom="4 VSS",
            maker=MICROCHIP,
            part="24LC02B/P",
            package="DIP8",
            note="2 Kbit EEPROM with I2C bus",
        ),
        box(
            "25LC256",
            left="1 {CS} N\n6 SCK C\n5 SI\n2 SO",
            right="3 {WP} N\n7 {HOLD} N",
            top="8 VCC",
            bottom="4 VSS",
            maker=MICROCHIP,
            part="25LC256-I/P",
            package="DIP8",
            note="256 Kbit EEPROM with SPI bus",
        ),
        box(
            "DS1307",
            left="1 X1\n2 X2\n.\n5 SDA\n6 SCL",
            right="7 SQW/OUT",
            top="3 VBAT\n8 VCC",
            bottom="4 GND",
            maker="Analog Devices",
            part="DS1307+",
            package="DIP8",
            note="Real-time clock with I2C bus; needs a 32.768 kHz crystal.",
        ),
    ]
