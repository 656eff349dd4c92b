<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk_UA">
<context>
    <name>NumberFormat</name>
    <message>
        <source>Exponential</source>
        <translation>Експоненційний</translation>
    </message>
    <message>
        <source>exponential</source>
        <translation>експоненційний</translation>
    </message>
    <message>
        <source>Fixed Point</source>
        <translation>З фіксованою комою</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Загальний</translation>
    </message>
    <message>
        <source>general</source>
        <translation>загальний</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Числовий</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Дробовий</translation>
    </message>
</context>
<context>
    <name>UnitGroup</name>
    <message>
        <source>Dimensionless</source>
        <translation>Безрозмірні</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Довжина</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Площа</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Об’єм</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Маса</translation>
    </message>
    <message>
        <source>Linear Weight</source>
        <translation>Лінійна густина</translation>
    </message>
    <message>
        <source>Amount of Substance</source>
        <translation>Кількість речовини</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Кут</translation>
    </message>
    <message>
        <source>Solid Angle</source>
        <translation>Тілесний кут</translation>
    </message>
    <message>
        <source>Area Density</source>
        <translation>Поверхнева густина</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>Концентрація</translation>
    </message>
    <message>
        <source>Parts-per</source>
        <translation>Частки (ppm, ppb)</translation>
    </message>
    <message>
        <source>Electric Current</source>
        <translation>Сила електричного струму</translation>
    </message>
    <message>
        <source>Electric Charge</source>
        <translation>Електричний заряд</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>Електрична ємність</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Швидкість передавання даних</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Густина</translation>
    </message>
    <message>
        <source>Unit Weight</source>
        <translation>Питома вага</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Енергія</translation>
    </message>
    <message>
        <source>Volumetric Flow Rate</source>
        <translation>Об’ємна витрата</translation>
    </message>
    <message>
        <source>Mass Flow Rate</source>
        <translation>Масова витрата</translation>
    </message>
    <message>
        <source>Flow Rate per Stroke</source>
        <translation>Подача за хід</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Сила</translation>
    </message>
    <message>
        <source>Linear Force</source>
        <translation>Погонне навантаження</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Частота</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>Індуктивність</translation>
    </message>
    <message>
        <source>Magnetic Flux Density</source>
        <translation>Магнітна індукція</translation>
    </message>
    <message>
        <source>Magnetic Flux</source>
        <translation>Магнітний потік</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Потужність</translation>
    </message>
    <message>
        <source>Power per Unit of Volume</source>
        <translation>Потужність на одиницю об’єму</translation>
    </message>
    <message>
        <source>Power per Unit of Mass</source>
        <translation>Потужність на одиницю маси</translation>
    </message>
    <message>
        <source>Power per Unit of Area</source>
        <translation>Потужність на одиницю площі</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Тиск</translation>
    </message>
    <message>
        <source>Force Scale</source>
        <translation>Масштаб сили</translation>
    </message>
    <message>
        <source>Linear Force Scale</source>
        <translation>Масштаб погонного навантаження</translation>
    </message>
    <message>
        <source>Area Force Scale</source>
        <translation>Масштаб розподіленого навантаження</translation>
    </message>
    <message>
        <source>Linear Moment</source>
        <translation>Погонний момент</translation>
    </message>
    <message>
        <source>Electrical Resistance</source>
        <translation>Електричний опір</translation>
    </message>
    <message>
        <source>Electric Conductance</source>
        <translation>Електрична провідність</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Швидкість</translation>
    </message>
    <message>
        <source>Computer Storage</source>
        <translation>Обсяг інформації</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Температура</translation>
    </message>
    <message>
        <source>Temperature Rate</source>
        <translation>Швидкість зміни температури</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Час</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>Крутний момент</translation>
    </message>
    <message>
        <source>Dynamic Viscosity</source>
        <translation>Динамічна в’язкість</translation>
    </message>
    <message>
        <source>Kinematic Viscosity</source>
        <translation>Кінематична в’язкість</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Прискорення</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Електрична напруга</translation>
    </message>
    <message>
        <source>Electric Potential</source>
        <translation>Електричний потенціал</translation>
    </message>
    <message>
        <source>Luminous Intensity</source>
        <translation>Сила світла</translation>
    </message>
    <message>
        <source>Illuminance</source>
        <translation>Освітленість</translation>
    </message>
    <message>
        <source>Luminous Energy</source>
        <translation>Світлова енергія</translation>
    </message>
    <message>
        <source>Luminous Flux</source>
        <translation>Світловий потік</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Яскравість</translation>
    </message>
    <message>
        <source>Luminous Emittance</source>
        <translation>Світність</translation>
    </message>
    <message>
        <source>Luminous Efficacy</source>
        <translation>Світлова віддача</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Втрати тиску на тертя</translation>
    </message>
    <message>
        <source>Rotational Point Spring Coefficient</source>
        <translation>Точкова обертальна жорсткість</translation>
    </message>
    <message>
        <source>Rotational Line Spring Coefficient</source>
        <translation>Погонна обертальна жорсткість</translation>
    </message>
    <message>
        <source>Heat Transfer Coefficient</source>
        <translation>Коефіцієнт теплопередачі</translation>
    </message>
    <message>
        <source>Airflow Density</source>
        <translation>Густина повітряного потоку</translation>
    </message>
    <message>
        <source>Airflow Divided by Volume</source>
        <translation>Повітряний потік на об’єм</translation>
    </message>
    <message>
        <source>Airflow Divided by Power</source>
        <translation>Повітряний потік на потужність</translation>
    </message>
    <message>
        <source>Area Divided by Power</source>
        <translation>Площа на потужність</translation>
    </message>
    <message>
        <source>Moment Scale</source>
        <translation>Масштаб моменту</translation>
    </message>
    <message>
        <source>Coefficient of Thermal Expansion</source>
        <translation>Коефіцієнт теплового розширення</translation>
    </message>
    <message>
        <source>Magnetic Field Intensity</source>
        <translation>Напруженість магнітного поля</translation>
    </message>
    <message>
        <source>Thermal Conductivity</source>
        <translation>Теплопровідність</translation>
    </message>
    <message>
        <source>Specific Heat</source>
        <translation>Питома теплоємність</translation>
    </message>
    <message>
        <source>Permeability</source>
        <translation>Паропроникність</translation>
    </message>
    <message>
        <source>Electrical Resistivity</source>
        <translation>Питомий електричний опір</translation>
    </message>
    <message>
        <source>Specific Heat of Vaporization</source>
        <translation>Питома теплота пароутворення</translation>
    </message>
</context>
<context>
    <name>UnitType</name>
    <message>
        <source>unitless</source>
        <translation>безрозмірна</translation>
    </message>
    <message>
        <source>meter</source>
        <translatorcomment>CLDR: метр</translatorcomment>
        <translation>метр</translation>
    </message>
    <message>
        <source>yottameter</source>
        <translatorcomment>CLDR: йотаметр</translatorcomment>
        <translation>йотаметр</translation>
    </message>
    <message>
        <source>zettameter</source>
        <translatorcomment>CLDR: зетаметр</translatorcomment>
        <translation>зетаметр</translation>
    </message>
    <message>
        <source>exameter</source>
        <translatorcomment>CLDR: ексаметр</translatorcomment>
        <translation>ексаметр</translation>
    </message>
    <message>
        <source>petameter</source>
        <translatorcomment>CLDR: петаметр</translatorcomment>
        <translation>петаметр</translation>
    </message>
    <message>
        <source>terameter</source>
        <translatorcomment>CLDR: тераметр</translatorcomment>
        <translation>тераметр</translation>
    </message>
    <message>
        <source>gigameter</source>
        <translatorcomment>CLDR: гігаметр</translatorcomment>
        <translation>гігаметр</translation>
    </message>
    <message>
        <source>megameter</source>
        <translatorcomment>CLDR: мегаметр</translatorcomment>
        <translation>мегаметр</translation>
    </message>
    <message>
        <source>kilometer</source>
        <translatorcomment>CLDR: кілометр</translatorcomment>
        <translation>кілометр</translation>
    </message>
    <message>
        <source>hectometer</source>
        <translatorcomment>CLDR: гектометр</translatorcomment>
        <translation>гектометр</translation>
    </message>
    <message>
        <source>decameter</source>
        <translatorcomment>CLDR: декаметр</translatorcomment>
        <translation>декаметр</translation>
    </message>
    <message>
        <source>decimeter</source>
        <translatorcomment>CLDR: дециметр</translatorcomment>
        <translation>дециметр</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translatorcomment>CLDR: сантиметр</translatorcomment>
        <translation>сантиметр</translation>
    </message>
    <message>
        <source>millimeter</source>
        <translatorcomment>CLDR: міліметр</translatorcomment>
        <translation>міліметр</translation>
    </message>
    <message>
        <source>micrometer</source>
        <translatorcomment>CLDR: мікрометр</translatorcomment>
        <translation>мікрометр</translation>
    </message>
    <message>
        <source>nanometer</source>
        <translatorcomment>CLDR: нанометр</translatorcomment>
        <translation>нанометр</translation>
    </message>
    <message>
        <source>picometer</source>
        <translatorcomment>CLDR: пікометр</translatorcomment>
        <translation>пікометр</translation>
    </message>
    <message>
        <source>femtometer</source>
        <translatorcomment>CLDR: фемтометр</translatorcomment>
        <translation>фемтометр</translation>
    </message>
    <message>
        <source>attometer</source>
        <translatorcomment>CLDR: атометр</translatorcomment>
        <translation>атометр</translation>
    </message>
    <message>
        <source>zeptometer</source>
        <translatorcomment>CLDR: зептометр</translatorcomment>
        <translation>зептометр</translation>
    </message>
    <message>
        <source>yoctometer</source>
        <translatorcomment>CLDR: йоктометр</translatorcomment>
        <translation>йоктометр</translation>
    </message>
    <message>
        <source>inch</source>
        <translatorcomment>CLDR: дюйм</translatorcomment>
        <translation>дюйм</translation>
    </message>
    <message>
        <source>foot</source>
        <translatorcomment>CLDR: фут</translatorcomment>
        <translation>фут</translation>
    </message>
    <message>
        <source>foot (Benoit)</source>
        <translation>фут (Бенуа)</translation>
    </message>
    <message>
        <source>foot (Clarke&apos;s; Cape)</source>
        <translation>фут (Кларк; Кейптаун)</translation>
    </message>
    <message>
        <source>foot (Indian)</source>
        <translation>фут (Індія)</translation>
    </message>
    <message>
        <source>foot (Sear&apos;s)</source>
        <translation>фут (Сірс)</translation>
    </message>
    <message>
        <source>foot (U.S. Survey)</source>
        <translation>геодезичний фут (США)</translation>
    </message>
    <message>
        <source>yard</source>
        <translatorcomment>CLDR: ярд</translatorcomment>
        <translation>ярд</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>чейн</translation>
    </message>
    <message>
        <source>chain (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>чейн (Рамсден; інженерний)</translation>
    </message>
    <message>
        <source>furlong</source>
        <translatorcomment>CLDR: фурлонг</translatorcomment>
        <translation>фурлонг</translation>
    </message>
    <message>
        <source>mile</source>
        <translatorcomment>CLDR: миля</translatorcomment>
        <translation>миля</translation>
    </message>
    <message>
        <source>geographical mile</source>
        <translation>географічна миля</translation>
    </message>
    <message>
        <source>mile (U.S. Survey)</source>
        <translation>геодезична миля (США)</translation>
    </message>
    <message>
        <source>nautical mile</source>
        <translatorcomment>CLDR: морська миля</translatorcomment>
        <translation>морська миля</translation>
    </message>
    <message>
        <source>statute mile</source>
        <translation>статутна миля</translation>
    </message>
    <message>
        <source>nautical mile (admiralty)</source>
        <translation>морська миля (Адміралтейство)</translation>
    </message>
    <message>
        <source>micron</source>
        <translation>мікрон</translation>
    </message>
    <message>
        <source>microinch</source>
        <translatorcomment>CLDR: мікродюйм</translatorcomment>
        <translation>мікродюйм</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>ангстрем</translation>
    </message>
    <message>
        <source>astronomical unit</source>
        <translatorcomment>CLDR: астрономічна одиниця</translatorcomment>
        <translation>астрономічна одиниця</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>кабельтов</translation>
    </message>
    <message>
        <source>cubit</source>
        <translation>лікоть</translation>
    </message>
    <message>
        <source>fathom</source>
        <translatorcomment>CLDR: фатом</translatorcomment>
        <translation>фатом</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>хенд</translation>
    </message>
    <message>
        <source>light-year</source>
        <translatorcomment>CLDR: світловий рік</translatorcomment>
        <translation>світловий рік</translation>
    </message>
    <message>
        <source>span</source>
        <translation>п’ядь</translation>
    </message>
    <message>
        <source>span (cloth)</source>
        <translation>п’ядь (тканина)</translation>
    </message>
    <message>
        <source>parsec</source>
        <translatorcomment>CLDR: парсек</translatorcomment>
        <translation>парсек</translation>
    </message>
    <message>
        <source>nautical league</source>
        <translation>морська ліга</translation>
    </message>
    <message>
        <source>league</source>
        <translation>ліга</translation>
    </message>
    <message>
        <source>mil</source>
        <translation>міл (тисячна дюйма)</translation>
    </message>
    <message>
        <source>mil (Sweden and Norway)</source>
        <translation>скандинавська миля (Швеція і Норвегія)</translation>
    </message>
    <message>
        <source>link</source>
        <translation>лінк</translation>
    </message>
    <message>
        <source>link (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>лінк (Рамсден; інженерний)</translation>
    </message>
    <message>
        <source>pace</source>
        <translation>крок</translation>
    </message>
    <message>
        <source>palm</source>
        <translation>долоня (3 дюйми)</translation>
    </message>
    <message>
        <source>rod</source>
        <translation>род</translation>
    </message>
    <message>
        <source>rope</source>
        <translation>роуп</translation>
    </message>
    <message>
        <source>skein</source>
        <translation>моток</translation>
    </message>
    <message>
        <source>caliber</source>
        <translation>калібр</translation>
    </message>
    <message>
        <source>survey inch</source>
        <translation>геодезичний дюйм</translation>
    </message>
    <message>
        <source>survey yard</source>
        <translation>геодезичний ярд</translation>
    </message>
    <message>
        <source>survey rod</source>
        <translation>геодезичний род</translation>
    </message>
    <message>
        <source>bolt</source>
        <translation>болт (сувій тканини)</translation>
    </message>
    <message>
        <source>square meter</source>
        <translatorcomment>CLDR: квадратний метр</translatorcomment>
        <translation>квадратний метр</translation>
    </message>
    <message>
        <source>square inch</source>
        <translatorcomment>CLDR: квадратний дюйм</translatorcomment>
        <translation>квадратний дюйм</translation>
    </message>
    <message>
        <source>square foot</source>
        <translatorcomment>CLDR: квадратний фут</translatorcomment>
        <translation>квадратний фут</translation>
    </message>
    <message>
        <source>square yard</source>
        <translatorcomment>CLDR: квадратний ярд</translatorcomment>
        <translation>квадратний ярд</translation>
    </message>
    <message>
        <source>acre</source>
        <translatorcomment>CLDR: акр</translatorcomment>
        <translation>акр</translation>
    </message>
    <message>
        <source>section</source>
        <translation>секція (квадратна миля)</translation>
    </message>
    <message>
        <source>township</source>
        <translation>тауншип (36 квадратних миль)</translation>
    </message>
    <message>
        <source>hectare</source>
        <translatorcomment>CLDR: гектар</translatorcomment>
        <translation>гектар</translation>
    </message>
    <message>
        <source>square kilometer</source>
        <translatorcomment>CLDR: квадратний кілометр</translatorcomment>
        <translation>квадратний кілометр</translation>
    </message>
    <message>
        <source>square mile</source>
        <translatorcomment>CLDR: квадратна миля</translatorcomment>
        <translation>квадратна миля</translation>
    </message>
    <message>
        <source>square centimeter</source>
        <translatorcomment>CLDR: квадратний сантиметр</translatorcomment>
        <translation>квадратний сантиметр</translation>
    </message>
    <message>
        <source>square millimeter</source>
        <translatorcomment>CLDR: квадратний міліметр</translatorcomment>
        <translation>квадратний міліметр</translation>
    </message>
    <message>
        <source>circular mil</source>
        <translation>круговий міл</translation>
    </message>
    <message>
        <source>kilo-circular mil</source>
        <translation>тисяча кругових мілів</translation>
    </message>
    <message>
        <source>are</source>
        <translation>ар</translation>
    </message>
    <message>
        <source>barn</source>
        <translation>барн</translation>
    </message>
    <message>
        <source>centare</source>
        <translation>сантиар</translation>
    </message>
    <message>
        <source>square angstrom</source>
        <translation>квадратний ангстрем</translation>
    </message>
    <message>
        <source>square bolt</source>
        <translation>квадратний болт</translation>
    </message>
    <message>
        <source>square cable</source>
        <translation>квадратний кабельтов</translation>
    </message>
    <message>
        <source>square caliber</source>
        <translation>квадратний калібр</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>квадратний лікоть</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translatorcomment>CLDR: квадратний дециметр</translatorcomment>
        <translation>квадратний дециметр</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translatorcomment>CLDR: квадратний фатом</translatorcomment>
        <translation>квадратний фатом</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translatorcomment>CLDR: квадратний фурлонг</translatorcomment>
        <translation>квадратний фурлонг</translation>
    </message>
    <message>
        <source>square gigameter</source>
        <translatorcomment>CLDR: квадратний гігаметр</translatorcomment>
        <translation>квадратний гігаметр</translation>
    </message>
    <message>
        <source>square hand</source>
        <translation>квадратний хенд</translation>
    </message>
    <message>
        <source>square nautical league</source>
        <translation>квадратна морська ліга</translation>
    </message>
    <message>
        <source>square league (statute)</source>
        <translation>квадратна ліга (сухопутна)</translation>
    </message>
    <message>
        <source>square light-year</source>
        <translatorcomment>CLDR: квадратний світловий рік</translatorcomment>
        <translation>квадратний світловий рік</translation>
    </message>
    <message>
        <source>square link</source>
        <translation>квадратний лінк</translation>
    </message>
    <message>
        <source>square micron</source>
        <translation>квадратний мікрон</translation>
    </message>
    <message>
        <source>square mile (UK nautical)</source>
        <translation>квадратна миля (британська морська)</translation>
    </message>
    <message>
        <source>square mile (statute)</source>
        <translation>квадратна миля (статутна)</translation>
    </message>
    <message>
        <source>square millimicron</source>
        <translation>квадратний мілімікрон</translation>
    </message>
    <message>
        <source>square pace</source>
        <translation>квадратний крок</translation>
    </message>
    <message>
        <source>square palm</source>
        <translation>квадратна долоня</translation>
    </message>
    <message>
        <source>square parsec</source>
        <translatorcomment>CLDR: квадратний парсек</translatorcomment>
        <translation>квадратний парсек</translation>
    </message>
    <message>
        <source>square perch</source>
        <translation>квадратний перч</translation>
    </message>
    <message>
        <source>square rope</source>
        <translation>квадратний роуп</translation>
    </message>
    <message>
        <source>square skein</source>
        <translation>квадратний моток</translation>
    </message>
    <message>
        <source>square span</source>
        <translation>квадратна п’ядь</translation>
    </message>
    <message>
        <source>square survey foot</source>
        <translation>квадратний геодезичний фут</translation>
    </message>
    <message>
        <source>square chain</source>
        <translation>квадратний чейн</translation>
    </message>
    <message>
        <source>square mil</source>
        <translation>квадратний міл</translation>
    </message>
    <message>
        <source>square astronomical unit</source>
        <translation>квадратна астрономічна одиниця</translation>
    </message>
    <message>
        <source>survey acre</source>
        <translation>геодезичний акр</translation>
    </message>
    <message>
        <source>square survey yard</source>
        <translation>квадратний геодезичний ярд</translation>
    </message>
    <message>
        <source>board</source>
        <translation>борд (дошка)</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>корд (площа)</translation>
    </message>
    <message>
        <source>square microinch</source>
        <translation>квадратний мікродюйм</translation>
    </message>
    <message>
        <source>square micrometer</source>
        <translatorcomment>CLDR: квадратний мікрометр</translatorcomment>
        <translation>квадратний мікрометр</translation>
    </message>
    <message>
        <source>liter</source>
        <translatorcomment>CLDR: літр</translatorcomment>
        <translation>літр</translation>
    </message>
    <message>
        <source>cubic centimeter</source>
        <translatorcomment>CLDR: кубічний сантиметр</translatorcomment>
        <translation>кубічний сантиметр</translation>
    </message>
    <message>
        <source>tablespoon</source>
        <translatorcomment>CLDR: столова ложка</translatorcomment>
        <translation>столова ложка</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>столова ложка (Канада)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>столова ложка (США)</translation>
    </message>
    <message>
        <source>fluid ounce (imperial)</source>
        <translation>рідинна унція (британська)</translation>
    </message>
    <message>
        <source>fluid ounce (U.S.)</source>
        <translation>рідинна унція (США)</translation>
    </message>
    <message>
        <source>cup</source>
        <translation>чашка</translation>
    </message>
    <message>
        <source>cup (Canadian)</source>
        <translation>чашка (Канада)</translation>
    </message>
    <message>
        <source>cup (U.S.)</source>
        <translation>чашка (США)</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>кварта (британська)</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>кварта (США, рідинна)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>кварта (США, суха)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>галон (британський)</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>галон (США, рідинний; винний)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>галон (США, сухий)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>пивний галон</translation>
    </message>
    <message>
        <source>bushel (imperial)</source>
        <translation>бушель (британський)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry level)</source>
        <translation>бушель (США, без верху)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry heaped)</source>
        <translation>бушель (США, з верхом)</translation>
    </message>
    <message>
        <source>centiliter</source>
        <translatorcomment>CLDR: сантилітр</translatorcomment>
        <translation>сантилітр</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translatorcomment>CLDR: кубічний фут</translatorcomment>
        <translation>кубічний фут</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translatorcomment>CLDR: кубічний дюйм</translatorcomment>
        <translation>кубічний дюйм</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translatorcomment>CLDR: кубічний метр</translatorcomment>
        <translation>кубічний метр</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translatorcomment>CLDR: кубічний ярд</translatorcomment>
        <translation>кубічний ярд</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>рідинна драхма (США)</translation>
    </message>
    <message>
        <source>microliter</source>
        <translatorcomment>CLDR: мікролітр</translatorcomment>
        <translation>мікролітр</translation>
    </message>
    <message>
        <source>milliliter</source>
        <translatorcomment>CLDR: мілілітр</translatorcomment>
        <translation>мілілітр</translation>
    </message>
    <message>
        <source>pint (imperial)</source>
        <translation>пінта (британська)</translation>
    </message>
    <message>
        <source>pint (U.S. fluid)</source>
        <translation>пінта (США, рідинна)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>пінта (США, суха)</translation>
    </message>
    <message>
        <source>teaspoon</source>
        <translatorcomment>CLDR: чайна ложка</translatorcomment>
        <translation>чайна ложка</translation>
    </message>
    <message>
        <source>teaspoon (Canadian)</source>
        <translation>чайна ложка (Канада)</translation>
    </message>
    <message>
        <source>teaspoon (U.S.)</source>
        <translation>чайна ложка (США)</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>чайна ложка (британська)</translation>
    </message>
    <message>
        <source>cubic millimeter</source>
        <translatorcomment>CLDR: кубічний міліметр</translatorcomment>
        <translation>кубічний міліметр</translation>
    </message>
    <message>
        <source>barrel (imperial)</source>
        <translation>барель (британський)</translation>
    </message>
    <message>
        <source>barrel (petroleum)</source>
        <translation>барель (нафтовий)</translation>
    </message>
    <message>
        <source>barrel (U.S. dry)</source>
        <translation>барель (США, сухий)</translation>
    </message>
    <message>
        <source>barrel (U.S. fluid)</source>
        <translation>барель (США, рідинний)</translation>
    </message>
    <message>
        <source>board-foot</source>
        <translation>дощаний фут</translation>
    </message>
    <message>
        <source>decistere</source>
        <translation>децистер</translation>
    </message>
    <message>
        <source>dekaliter</source>
        <translatorcomment>CLDR: декалітр</translatorcomment>
        <translation>декалітр</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>декастер</translation>
    </message>
    <message>
        <source>dram</source>
        <translatorcomment>CLDR: рідинна драхма</translatorcomment>
        <translation>рідинна драхма</translation>
    </message>
    <message>
        <source>firkin</source>
        <translation>фіркін</translation>
    </message>
    <message>
        <source>cubic angstrom</source>
        <translation>кубічний ангстрем</translation>
    </message>
    <message>
        <source>cubic astronomical unit</source>
        <translation>кубічна астрономічна одиниця</translation>
    </message>
    <message>
        <source>cubic bolt</source>
        <translation>кубічний болт</translation>
    </message>
    <message>
        <source>cubic cable</source>
        <translation>кубічний кабельтов</translation>
    </message>
    <message>
        <source>cubic caliber</source>
        <translation>кубічний калібр</translation>
    </message>
    <message>
        <source>cubic chain</source>
        <translation>кубічний чейн</translation>
    </message>
    <message>
        <source>cubic cubit</source>
        <translation>кубічний лікоть</translation>
    </message>
    <message>
        <source>cubic fathom</source>
        <translatorcomment>CLDR: кубічний фатом</translatorcomment>
        <translation>кубічний фатом</translation>
    </message>
    <message>
        <source>cubic furlong</source>
        <translatorcomment>CLDR: кубічний фурлонг</translatorcomment>
        <translation>кубічний фурлонг</translation>
    </message>
    <message>
        <source>cubic gigameter</source>
        <translatorcomment>CLDR: кубічний гігаметр</translatorcomment>
        <translation>кубічний гігаметр</translation>
    </message>
    <message>
        <source>cubic hand</source>
        <translation>кубічний хенд</translation>
    </message>
    <message>
        <source>cubic hectometer</source>
        <translatorcomment>CLDR: кубічний гектометр</translatorcomment>
        <translation>кубічний гектометр</translation>
    </message>
    <message>
        <source>cubic nautical league</source>
        <translation>кубічна морська ліга</translation>
    </message>
    <message>
        <source>cubic league (statute)</source>
        <translation>кубічна ліга (сухопутна)</translation>
    </message>
    <message>
        <source>cubic light-year</source>
        <translatorcomment>CLDR: кубічний світловий рік</translatorcomment>
        <translation>кубічний світловий рік</translation>
    </message>
    <message>
        <source>cubic link</source>
        <translation>кубічний лінк</translation>
    </message>
    <message>
        <source>cubic mil</source>
        <translation>кубічний міл</translation>
    </message>
    <message>
        <source>cubic mile (UK nautical)</source>
        <translation>кубічна миля (британська морська)</translation>
    </message>
    <message>
        <source>cubic mile</source>
        <translatorcomment>CLDR: кубічна миля</translatorcomment>
        <translation>кубічна миля</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
        <translation>кубічна морська миля</translation>
    </message>
    <message>
        <source>cubic mile (statute)</source>
        <translation>кубічна миля (статутна)</translation>
    </message>
    <message>
        <source>cubic millimicron</source>
        <translation>кубічний мілімікрон</translation>
    </message>
    <message>
        <source>cubic pace</source>
        <translation>кубічний крок</translation>
    </message>
    <message>
        <source>cubic palm</source>
        <translation>кубічна долоня</translation>
    </message>
    <message>
        <source>cubic parsec</source>
        <translatorcomment>CLDR: кубічний парсек</translatorcomment>
        <translation>кубічний парсек</translation>
    </message>
    <message>
        <source>cubic perch</source>
        <translation>кубічний перч</translation>
    </message>
    <message>
        <source>cubic rope</source>
        <translation>кубічний роуп</translation>
    </message>
    <message>
        <source>cubic skein</source>
        <translation>кубічний моток</translation>
    </message>
    <message>
        <source>cubic span</source>
        <translation>кубічна п’ядь</translation>
    </message>
    <message>
        <source>cubic survey foot</source>
        <translation>кубічний геодезичний фут</translation>
    </message>
    <message>
        <source>cubic decimeter</source>
        <translatorcomment>CLDR: кубічний дециметр</translatorcomment>
        <translation>кубічний дециметр</translation>
    </message>
    <message>
        <source>tun</source>
        <translation>тун (бочка)</translation>
    </message>
    <message>
        <source>peck</source>
        <translation>пек</translation>
    </message>
    <message>
        <source>peck (U.S. dry)</source>
        <translation>пек (США, сухий)</translation>
    </message>
    <message>
        <source>peck (imperial)</source>
        <translation>пек (британський)</translation>
    </message>
    <message>
        <source>minim (imperial)</source>
        <translation>мінім (британський)</translation>
    </message>
    <message>
        <source>minim (U.S.)</source>
        <translation>мінім (США)</translation>
    </message>
    <message>
        <source>kiloliter</source>
        <translatorcomment>CLDR: кілолітр</translatorcomment>
        <translation>кілолітр</translation>
    </message>
    <message>
        <source>hogshead (U.S.)</source>
        <translation>хогсхед (США)</translation>
    </message>
    <message>
        <source>hogshead (imperial)</source>
        <translation>хогсхед (британський)</translation>
    </message>
    <message>
        <source>gill (imperial)</source>
        <translation>джил (британський)</translation>
    </message>
    <message>
        <source>gill (U.S.)</source>
        <translation>джил (США)</translation>
    </message>
    <message>
        <source>cubic survey yard</source>
        <translation>кубічний геодезичний ярд</translation>
    </message>
    <message>
        <source>cord-foot</source>
        <translation>корд-фут</translation>
    </message>
    <message>
        <source>cord (firewood)</source>
        <translation>корд (дрова)</translation>
    </message>
    <message>
        <source>register ton</source>
        <translation>реєстрова тонна</translation>
    </message>
    <message>
        <source>acre-foot</source>
        <translatorcomment>CLDR: акр-фут</translatorcomment>
        <translation>акр-фут</translation>
    </message>
    <message>
        <source>acre-inch</source>
        <translation>акр-дюйм</translation>
    </message>
    <message>
        <source>cubic microinch</source>
        <translation>кубічний мікродюйм</translation>
    </message>
    <message>
        <source>cubic micrometer</source>
        <translatorcomment>CLDR: кубічний мікрометр</translatorcomment>
        <translation>кубічний мікрометр</translation>
    </message>
    <message>
        <source>cubic kilometer</source>
        <translatorcomment>CLDR: кубічний кілометр</translatorcomment>
        <translation>кубічний кілометр</translation>
    </message>
    <message>
        <source>kilogram</source>
        <translatorcomment>CLDR: кілограм</translatorcomment>
        <translation>кілограм</translation>
    </message>
    <message>
        <source>gram</source>
        <translatorcomment>CLDR: грам</translatorcomment>
        <translation>грам</translation>
    </message>
    <message>
        <source>yottagram</source>
        <translatorcomment>CLDR: йотаграм</translatorcomment>
        <translation>йотаграм</translation>
    </message>
    <message>
        <source>zettagram</source>
        <translatorcomment>CLDR: зетаграм</translatorcomment>
        <translation>зетаграм</translation>
    </message>
    <message>
        <source>exagram</source>
        <translatorcomment>CLDR: ексаграм</translatorcomment>
        <translation>ексаграм</translation>
    </message>
    <message>
        <source>petagram</source>
        <translatorcomment>CLDR: петаграм</translatorcomment>
        <translation>петаграм</translation>
    </message>
    <message>
        <source>teragram</source>
        <translatorcomment>CLDR: тераграм</translatorcomment>
        <translation>тераграм</translation>
    </message>
    <message>
        <source>gigagram</source>
        <translatorcomment>CLDR: гігаграм</translatorcomment>
        <translation>гігаграм</translation>
    </message>
    <message>
        <source>megagram</source>
        <translatorcomment>CLDR: мегаграм</translatorcomment>
        <translation>мегаграм</translation>
    </message>
    <message>
        <source>hectogram</source>
        <translatorcomment>CLDR: гектограм</translatorcomment>
        <translation>гектограм</translation>
    </message>
    <message>
        <source>decagram</source>
        <translatorcomment>CLDR: декаграм</translatorcomment>
        <translation>декаграм</translation>
    </message>
    <message>
        <source>decigram</source>
        <translatorcomment>CLDR: дециграм</translatorcomment>
        <translation>дециграм</translation>
    </message>
    <message>
        <source>centigram</source>
        <translatorcomment>CLDR: сантиграм</translatorcomment>
        <translation>сантиграм</translation>
    </message>
    <message>
        <source>milligram</source>
        <translatorcomment>CLDR: міліграм</translatorcomment>
        <translation>міліграм</translation>
    </message>
    <message>
        <source>microgram</source>
        <translatorcomment>CLDR: мікрограм</translatorcomment>
        <translation>мікрограм</translation>
    </message>
    <message>
        <source>nanogram</source>
        <translatorcomment>CLDR: нанограм</translatorcomment>
        <translation>нанограм</translation>
    </message>
    <message>
        <source>picogram</source>
        <translatorcomment>CLDR: пікограм</translatorcomment>
        <translation>пікограм</translation>
    </message>
    <message>
        <source>femtogram</source>
        <translatorcomment>CLDR: фемтограм</translatorcomment>
        <translation>фемтограм</translation>
    </message>
    <message>
        <source>attogram</source>
        <translatorcomment>CLDR: атограм</translatorcomment>
        <translation>атограм</translation>
    </message>
    <message>
        <source>zeptogram</source>
        <translatorcomment>CLDR: зептограм</translatorcomment>
        <translation>зептограм</translation>
    </message>
    <message>
        <source>yoctogram</source>
        <translatorcomment>CLDR: йоктограм</translatorcomment>
        <translation>йоктограм</translation>
    </message>
    <message>
        <source>pound (meter)</source>
        <translation>метричний фунт</translation>
    </message>
    <message>
        <source>pound</source>
        <translatorcomment>CLDR: фунт</translatorcomment>
        <translation>фунт</translation>
    </message>
    <message>
        <source>pound (troy)</source>
        <translation>тройський фунт</translation>
    </message>
    <message>
        <source>ounce (avoirdupois)</source>
        <translation>унція (евердьюпойс)</translation>
    </message>
    <message>
        <source>ounce (apothecary; troy)</source>
        <translation>унція (аптекарська; тройська)</translation>
    </message>
    <message>
        <source>stone</source>
        <translatorcomment>CLDR: стоун</translatorcomment>
        <translation>стоун</translation>
    </message>
    <message>
        <source>short ton</source>
        <translation>коротка тонна</translation>
    </message>
    <message>
        <source>long ton</source>
        <translation>довга тонна</translation>
    </message>
    <message>
        <source>carat</source>
        <translatorcomment>CLDR: карат</translatorcomment>
        <translation>карат</translation>
    </message>
    <message>
        <source>carat (metric)</source>
        <translation>карат (метричний)</translation>
    </message>
    <message>
        <source>dram (avoirdupois)</source>
        <translation>драхма (евердьюпойс)</translation>
    </message>
    <message>
        <source>dram (apothecary; troy)</source>
        <translation>драхма (аптекарська; тройська)</translation>
    </message>
    <message>
        <source>pennyweight</source>
        <translation>пеннівейт</translation>
    </message>
    <message>
        <source>tael</source>
        <translation>таель</translation>
    </message>
    <message>
        <source>tola</source>
        <translation>тола</translation>
    </message>
    <message>
        <source>long hundredweight</source>
        <translation>довгий хандредвейт</translation>
    </message>
    <message>
        <source>short hundredweight</source>
        <translation>короткий хандредвейт</translation>
    </message>
    <message>
        <source>grain</source>
        <translatorcomment>CLDR: гран</translatorcomment>
        <translation>гран</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>перловий гран</translation>
    </message>
    <message>
        <source>dalton</source>
        <translatorcomment>CLDR: дальтон</translatorcomment>
        <translation>дальтон</translation>
    </message>
    <message>
        <source>kilodalton</source>
        <translatorcomment>CLDR: кілодальтон</translatorcomment>
        <translation>кілодальтон</translation>
    </message>
    <message>
        <source>slug</source>
        <translation>слаг</translation>
    </message>
    <message>
        <source>kilogram per meter</source>
        <translatorcomment>CLDR: кілограм на метр</translatorcomment>
        <translation>кілограм на метр</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translatorcomment>CLDR: фунт на фут</translatorcomment>
        <translation>фунт на фут</translation>
    </message>
    <message>
        <source>mole</source>
        <translatorcomment>CLDR: моль</translatorcomment>
        <translation>моль</translation>
    </message>
    <message>
        <source>yottamole</source>
        <translatorcomment>CLDR: йотамоль</translatorcomment>
        <translation>йотамоль</translation>
    </message>
    <message>
        <source>zettamole</source>
        <translatorcomment>CLDR: зетамоль</translatorcomment>
        <translation>зетамоль</translation>
    </message>
    <message>
        <source>examole</source>
        <translatorcomment>CLDR: ексамоль</translatorcomment>
        <translation>ексамоль</translation>
    </message>
    <message>
        <source>petamole</source>
        <translatorcomment>CLDR: петамоль</translatorcomment>
        <translation>петамоль</translation>
    </message>
    <message>
        <source>teramole</source>
        <translatorcomment>CLDR: терамоль</translatorcomment>
        <translation>терамоль</translation>
    </message>
    <message>
        <source>gigamole</source>
        <translatorcomment>CLDR: гігамоль</translatorcomment>
        <translation>гігамоль</translation>
    </message>
    <message>
        <source>megamole</source>
        <translatorcomment>CLDR: мегамоль</translatorcomment>
        <translation>мегамоль</translation>
    </message>
    <message>
        <source>kilomole</source>
        <translatorcomment>CLDR: кіломоль</translatorcomment>
        <translation>кіломоль</translation>
    </message>
    <message>
        <source>hectomole</source>
        <translatorcomment>CLDR: гектомоль</translatorcomment>
        <translation>гектомоль</translation>
    </message>
    <message>
        <source>decamole</source>
        <translatorcomment>CLDR: декамоль</translatorcomment>
        <translation>декамоль</translation>
    </message>
    <message>
        <source>decimole</source>
        <translatorcomment>CLDR: децимоль</translatorcomment>
        <translation>децимоль</translation>
    </message>
    <message>
        <source>centimole</source>
        <translatorcomment>CLDR: сантимоль</translatorcomment>
        <translation>сантимоль</translation>
    </message>
    <message>
        <source>millimole</source>
        <translatorcomment>CLDR: мілімоль</translatorcomment>
        <translation>мілімоль</translation>
    </message>
    <message>
        <source>micromole</source>
        <translatorcomment>CLDR: мікромоль</translatorcomment>
        <translation>мікромоль</translation>
    </message>
    <message>
        <source>nanomole</source>
        <translatorcomment>CLDR: наномоль</translatorcomment>
        <translation>наномоль</translation>
    </message>
    <message>
        <source>picomole</source>
        <translatorcomment>CLDR: пікомоль</translatorcomment>
        <translation>пікомоль</translation>
    </message>
    <message>
        <source>femtomole</source>
        <translatorcomment>CLDR: фемтомоль</translatorcomment>
        <translation>фемтомоль</translation>
    </message>
    <message>
        <source>attomole</source>
        <translatorcomment>CLDR: атомоль</translatorcomment>
        <translation>атомоль</translation>
    </message>
    <message>
        <source>zeptomole</source>
        <translatorcomment>CLDR: зептомоль</translatorcomment>
        <translation>зептомоль</translation>
    </message>
    <message>
        <source>yoctomole</source>
        <translatorcomment>CLDR: йоктомоль</translatorcomment>
        <translation>йоктомоль</translation>
    </message>
    <message>
        <source>radian</source>
        <translatorcomment>CLDR: радіан</translatorcomment>
        <translation>радіан</translation>
    </message>
    <message>
        <source>degree</source>
        <translatorcomment>CLDR: градус</translatorcomment>
        <translation>градус</translation>
    </message>
    <message>
        <source>milliradian</source>
        <translatorcomment>CLDR: мілірадіан</translatorcomment>
        <translation>мілірадіан</translation>
    </message>
    <message>
        <source>grad</source>
        <translation>град (гон)</translation>
    </message>
    <message>
        <source>angular mil (NATO)</source>
        <translation>тисячна (НАТО)</translation>
    </message>
    <message>
        <source>angular mil (Sweden)</source>
        <translation>тисячна (Швеція)</translation>
    </message>
    <message>
        <source>angular mil (USSR)</source>
        <translation>тисячна (СРСР)</translation>
    </message>
    <message>
        <source>angle minute</source>
        <translatorcomment>CLDR: кутова мінута</translatorcomment>
        <translation>кутова мінута</translation>
    </message>
    <message>
        <source>angle second</source>
        <translatorcomment>CLDR: кутова секунда</translatorcomment>
        <translation>кутова секунда</translation>
    </message>
    <message>
        <source>milliarc second</source>
        <translation>кутова мілісекунда</translation>
    </message>
    <message>
        <source>steradian</source>
        <translation>стерадіан</translation>
    </message>
    <message>
        <source>gram per square meter</source>
        <translatorcomment>CLDR: грам на квадратний метр</translatorcomment>
        <translation>грам на квадратний метр</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translatorcomment>CLDR: грам квадратний дюйм</translatorcomment>
        <translation>грам квадратний дюйм</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translatorcomment>CLDR: нанограм на літр</translatorcomment>
        <translation>нанограм на літр</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translatorcomment>CLDR: нанограм на децилітр</translatorcomment>
        <translation>нанограм на децилітр</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translatorcomment>CLDR: нанограм на мілілітр</translatorcomment>
        <translation>нанограм на мілілітр</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translatorcomment>CLDR: нанограм на мікролітр</translatorcomment>
        <translation>нанограм на мікролітр</translation>
    </message>
    <message>
        <source>part per million</source>
        <translatorcomment>CLDR: мільйонна доля</translatorcomment>
        <translation>мільйонна доля</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>мільярдна частка</translation>
    </message>
    <message>
        <source>ampere</source>
        <translatorcomment>CLDR: ампер</translatorcomment>
        <translation>ампер</translation>
    </message>
    <message>
        <source>yottaampere</source>
        <translatorcomment>CLDR: йотаампер</translatorcomment>
        <translation>йотаампер</translation>
    </message>
    <message>
        <source>zettaampere</source>
        <translatorcomment>CLDR: зетаампер</translatorcomment>
        <translation>зетаампер</translation>
    </message>
    <message>
        <source>exaampere</source>
        <translatorcomment>CLDR: ексаампер</translatorcomment>
        <translation>ексаампер</translation>
    </message>
    <message>
        <source>petaampere</source>
        <translatorcomment>CLDR: петаампер</translatorcomment>
        <translation>петаампер</translation>
    </message>
    <message>
        <source>teraampere</source>
        <translatorcomment>CLDR: тераампер</translatorcomment>
        <translation>тераампер</translation>
    </message>
    <message>
        <source>gigaampere</source>
        <translatorcomment>CLDR: гігаампер</translatorcomment>
        <translation>гігаампер</translation>
    </message>
    <message>
        <source>megaampere</source>
        <translatorcomment>CLDR: мегаампер</translatorcomment>
        <translation>мегаампер</translation>
    </message>
    <message>
        <source>kiloampere</source>
        <translatorcomment>CLDR: кілоампер</translatorcomment>
        <translation>кілоампер</translation>
    </message>
    <message>
        <source>hectoampere</source>
        <translatorcomment>CLDR: гектоампер</translatorcomment>
        <translation>гектоампер</translation>
    </message>
    <message>
        <source>decaampere</source>
        <translatorcomment>CLDR: декаампер</translatorcomment>
        <translation>декаампер</translation>
    </message>
    <message>
        <source>deciampere</source>
        <translatorcomment>CLDR: дециампер</translatorcomment>
        <translation>дециампер</translation>
    </message>
    <message>
        <source>centiampere</source>
        <translatorcomment>CLDR: сантиампер</translatorcomment>
        <translation>сантиампер</translation>
    </message>
    <message>
        <source>milliampere</source>
        <translatorcomment>CLDR: міліампер</translatorcomment>
        <translation>міліампер</translation>
    </message>
    <message>
        <source>microampere</source>
        <translatorcomment>CLDR: мікроампер</translatorcomment>
        <translation>мікроампер</translation>
    </message>
    <message>
        <source>nanoampere</source>
        <translatorcomment>CLDR: наноампер</translatorcomment>
        <translation>наноампер</translation>
    </message>
    <message>
        <source>picoampere</source>
        <translatorcomment>CLDR: пікоампер</translatorcomment>
        <translation>пікоампер</translation>
    </message>
    <message>
        <source>femtoampere</source>
        <translatorcomment>CLDR: фемтоампер</translatorcomment>
        <translation>фемтоампер</translation>
    </message>
    <message>
        <source>attoampere</source>
        <translatorcomment>CLDR: атоампер</translatorcomment>
        <translation>атоампер</translation>
    </message>
    <message>
        <source>zeptoampere</source>
        <translatorcomment>CLDR: зептоампер</translatorcomment>
        <translation>зептоампер</translation>
    </message>
    <message>
        <source>yoctoampere</source>
        <translatorcomment>CLDR: йоктоампер</translatorcomment>
        <translation>йоктоампер</translation>
    </message>
    <message>
        <source>coulomb</source>
        <translation>кулон</translation>
    </message>
    <message>
        <source>ampere hour</source>
        <translation>ампер-година</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translation>міліампер-година</translation>
    </message>
    <message>
        <source>faraday</source>
        <translation>фарадей</translation>
    </message>
    <message>
        <source>farad</source>
        <translation>фарад</translation>
    </message>
    <message>
        <source>yottafarad</source>
        <translation>йотафарад</translation>
    </message>
    <message>
        <source>zettafarad</source>
        <translation>зетафарад</translation>
    </message>
    <message>
        <source>exafarad</source>
        <translation>ексафарад</translation>
    </message>
    <message>
        <source>petafarad</source>
        <translation>петафарад</translation>
    </message>
    <message>
        <source>terafarad</source>
        <translation>терафарад</translation>
    </message>
    <message>
        <source>gigafarad</source>
        <translation>гігафарад</translation>
    </message>
    <message>
        <source>megafarad</source>
        <translation>мегафарад</translation>
    </message>
    <message>
        <source>kilofarad</source>
        <translation>кілофарад</translation>
    </message>
    <message>
        <source>hectofarad</source>
        <translation>гектофарад</translation>
    </message>
    <message>
        <source>decafarad</source>
        <translation>декафарад</translation>
    </message>
    <message>
        <source>decifarad</source>
        <translation>децифарад</translation>
    </message>
    <message>
        <source>centifarad</source>
        <translation>сантифарад</translation>
    </message>
    <message>
        <source>millifarad</source>
        <translation>міліфарад</translation>
    </message>
    <message>
        <source>microfarad</source>
        <translation>мікрофарад</translation>
    </message>
    <message>
        <source>nanofarad</source>
        <translation>нанофарад</translation>
    </message>
    <message>
        <source>picofarad</source>
        <translation>пікофарад</translation>
    </message>
    <message>
        <source>femtofarad</source>
        <translation>фемтофарад</translation>
    </message>
    <message>
        <source>attofarad</source>
        <translation>атофарад</translation>
    </message>
    <message>
        <source>zeptofarad</source>
        <translation>зептофарад</translation>
    </message>
    <message>
        <source>yoctofarad</source>
        <translation>йоктофарад</translation>
    </message>
    <message>
        <source>kilopicofarad</source>
        <translation>кілопікофарад</translation>
    </message>
    <message>
        <source>baud</source>
        <translation>бод</translation>
    </message>
    <message>
        <source>bit per second</source>
        <translatorcomment>CLDR: біт на секунду</translatorcomment>
        <translation>біт на секунду</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translatorcomment>CLDR: байт на секунду</translatorcomment>
        <translation>байт на секунду</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>кілобод</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translatorcomment>CLDR: кілобіт на секунду</translatorcomment>
        <translation>кілобіт на секунду</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translatorcomment>CLDR: кілобайт на секунду</translatorcomment>
        <translation>кілобайт на секунду</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>мегабод</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translatorcomment>CLDR: мегабіт на секунду</translatorcomment>
        <translation>мегабіт на секунду</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translatorcomment>CLDR: мегабайт на секунду</translatorcomment>
        <translation>мегабайт на секунду</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translatorcomment>CLDR: кілограм на кубічний метр</translatorcomment>
        <translation>кілограм на кубічний метр</translation>
    </message>
    <message>
        <source>kilogram per liter</source>
        <translatorcomment>CLDR: кілограм на літр</translatorcomment>
        <translation>кілограм на літр</translation>
    </message>
    <message>
        <source>gram per liter</source>
        <translatorcomment>CLDR: грам на літр</translatorcomment>
        <translation>грам на літр</translation>
    </message>
    <message>
        <source>microgram per milliliter</source>
        <translatorcomment>CLDR: мікрограм на мілілітр</translatorcomment>
        <translation>мікрограм на мілілітр</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translatorcomment>CLDR: міліграм на мілілітр</translatorcomment>
        <translation>міліграм на мілілітр</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translatorcomment>CLDR: фунт на галон</translatorcomment>
        <translation>фунт на галон</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translatorcomment>CLDR: унція на галон</translatorcomment>
        <translation>унція на галон</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translatorcomment>CLDR: фунт на кубічний фут</translatorcomment>
        <translation>фунт на кубічний фут</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translatorcomment>CLDR: фунт на кубічний дюйм</translatorcomment>
        <translation>фунт на кубічний дюйм</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translatorcomment>CLDR: грам на кубічний сантиметр</translatorcomment>
        <translation>грам на кубічний сантиметр</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>ньютон-секунда в квадраті на міліметр у четвертому степені</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translatorcomment>CLDR: ньютон на кубічний метр</translatorcomment>
        <translation>ньютон на кубічний метр</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translatorcomment>CLDR: кілоньютон на кубічний метр</translatorcomment>
        <translation>кілоньютон на кубічний метр</translation>
    </message>
    <message>
        <source>pound force per cubic foot</source>
        <translation>фунт-сила на кубічний фут</translation>
    </message>
    <message>
        <source>kip per cubic inch</source>
        <translation>кіп на кубічний дюйм</translation>
    </message>
    <message>
        <source>kip per cubic foot</source>
        <translation>кіп на кубічний фут</translation>
    </message>
    <message>
        <source>joule</source>
        <translatorcomment>CLDR: джоуль</translatorcomment>
        <translation>джоуль</translation>
    </message>
    <message>
        <source>calorie</source>
        <translatorcomment>CLDR: калорія</translatorcomment>
        <translation>калорія</translation>
    </message>
    <message>
        <source>kilocalorie</source>
        <translatorcomment>CLDR: кілокалорія</translatorcomment>
        <translation>кілокалорія</translation>
    </message>
    <message>
        <source>British thermal unit (thermochemical)</source>
        <translation>британська теплова одиниця (термохімічна)</translation>
    </message>
    <message>
        <source>British thermal unit (ISO)</source>
        <translation>британська теплова одиниця (ISO)</translation>
    </message>
    <message>
        <source>British thermal unit (63 degree F)</source>
        <translation>британська теплова одиниця (63 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (60 degree F)</source>
        <translation>британська теплова одиниця (60 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (59 degree F)</source>
        <translation>британська теплова одиниця (59 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table)</source>
        <translation>британська теплова одиниця (міжнародна)</translation>
    </message>
    <message>
        <source>British thermal unit (mean)</source>
        <translation>британська теплова одиниця (середня)</translation>
    </message>
    <message>
        <source>British thermal unit (39 degree F)</source>
        <translation>британська теплова одиниця (39 °F)</translation>
    </message>
    <message>
        <source>kiloelectronvolt</source>
        <translatorcomment>CLDR: кілоелектрон-вольт</translatorcomment>
        <translation>кілоелектрон-вольт</translation>
    </message>
    <message>
        <source>megaelectronvolt</source>
        <translatorcomment>CLDR: мегаелектрон-вольт</translatorcomment>
        <translation>мегаелектрон-вольт</translation>
    </message>
    <message>
        <source>electronvolt</source>
        <translatorcomment>CLDR: електрон-вольт</translatorcomment>
        <translation>електрон-вольт</translation>
    </message>
    <message>
        <source>erg</source>
        <translation>ерг</translation>
    </message>
    <message>
        <source>kilowatt hour</source>
        <translatorcomment>CLDR: кіловат-година</translatorcomment>
        <translation>кіловат-година</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translation>кіловат-хвилина</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translation>кіловат-секунда</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>терм (США)</translation>
    </message>
    <message>
        <source>newton meter</source>
        <translatorcomment>CLDR: ньютон-метр</translatorcomment>
        <translation>ньютон-метр</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translatorcomment>CLDR: деканьютон-метр</translatorcomment>
        <translation>деканьютон-метр</translation>
    </message>
    <message>
        <source>kilonewton meter</source>
        <translatorcomment>CLDR: кілоньютон-метр</translatorcomment>
        <translation>кілоньютон-метр</translation>
    </message>
    <message>
        <source>meganewton meter</source>
        <translatorcomment>CLDR: меганьютон-метр</translatorcomment>
        <translation>меганьютон-метр</translation>
    </message>
    <message>
        <source>kilogram force meter</source>
        <translation>кілограм-сила-метр</translation>
    </message>
    <message>
        <source>kilogram force foot</source>
        <translation>кілограм-сила-фут</translation>
    </message>
    <message>
        <source>ton force foot</source>
        <translation>тонна-сила-фут</translation>
    </message>
    <message>
        <source>ton force meter</source>
        <translation>тонна-сила-метр</translation>
    </message>
    <message>
        <source>foot kilopound</source>
        <translation>фут-кілофунт</translation>
    </message>
    <message>
        <source>foot pound force</source>
        <translation>фут-фунт-сила</translation>
    </message>
    <message>
        <source>calorie (20 degree C)</source>
        <translation>калорія (20 °C)</translation>
    </message>
    <message>
        <source>calorie (thermochemical)</source>
        <translation>калорія (термохімічна)</translation>
    </message>
    <message>
        <source>calorie (15 degree C)</source>
        <translation>калорія (15 °C)</translation>
    </message>
    <message>
        <source>calorie (mean)</source>
        <translation>калорія (середня)</translation>
    </message>
    <message>
        <source>calorie (3.98 degree C)</source>
        <translation>калорія (3,98 °C)</translation>
    </message>
    <message>
        <source>Therm (EC)</source>
        <translation>терм (ЄС)</translation>
    </message>
    <message>
        <source>cubic meter per second</source>
        <translatorcomment>CLDR: кубічний метр на секунду</translatorcomment>
        <translation>кубічний метр на секунду</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translatorcomment>CLDR: літр на секунду</translatorcomment>
        <translation>літр на секунду</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translatorcomment>CLDR: літр на хвилину</translatorcomment>
        <translation>літр на хвилину</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translatorcomment>CLDR: літр на годину</translatorcomment>
        <translation>літр на годину</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translatorcomment>CLDR: галон на секунду</translatorcomment>
        <translation>галон на секунду</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translatorcomment>CLDR: галон на хвилину</translatorcomment>
        <translation>галон на хвилину</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translatorcomment>CLDR: галон на годину</translatorcomment>
        <translation>галон на годину</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translatorcomment>CLDR: галон на день</translatorcomment>
        <translation>галон на день</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translatorcomment>CLDR: мілілітр на хвилину</translatorcomment>
        <translation>мілілітр на хвилину</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translatorcomment>CLDR: кубічний сантиметр на хвилину</translatorcomment>
        <translation>кубічний сантиметр на хвилину</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translatorcomment>CLDR: кубічний фут на годину</translatorcomment>
        <translation>кубічний фут на годину</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translatorcomment>CLDR: кубічний фут на хвилину</translatorcomment>
        <translation>кубічний фут на хвилину</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translatorcomment>CLDR: кубічний фут на секунду</translatorcomment>
        <translation>кубічний фут на секунду</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translatorcomment>CLDR: кубічний дюйм на хвилину</translatorcomment>
        <translation>кубічний дюйм на хвилину</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translatorcomment>CLDR: кубічний метр на годину</translatorcomment>
        <translation>кубічний метр на годину</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translatorcomment>CLDR: кубічний метр на хвилину</translatorcomment>
        <translation>кубічний метр на хвилину</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translatorcomment>CLDR: кубічний сантиметр на секунду</translatorcomment>
        <translation>кубічний сантиметр на секунду</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
        <translatorcomment>CLDR: кубічний сантиметр на годину</translatorcomment>
        <translation>кубічний сантиметр на годину</translation>
    </message>
    <message>
        <source>US gallon per hour</source>
        <translation>американський галон за годину</translation>
    </message>
    <message>
        <source>US gallon per second</source>
        <translation>американський галон за секунду</translation>
    </message>
    <message>
        <source>Imp gallon per day</source>
        <translation>британський галон за добу</translation>
    </message>
    <message>
        <source>Imp gallon per hour</source>
        <translation>британський галон за годину</translation>
    </message>
    <message>
        <source>Imp gallon per minute</source>
        <translation>британський галон за хвилину</translation>
    </message>
    <message>
        <source>Imp gallon per second</source>
        <translation>британський галон за секунду</translation>
    </message>
    <message>
        <source>Imp million gallon per day</source>
        <translation>мільйон британських галонів за добу</translation>
    </message>
    <message>
        <source>liter per day</source>
        <translatorcomment>CLDR: літр на день</translatorcomment>
        <translation>літр на день</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>мільйон літрів за добу</translation>
    </message>
    <message>
        <source>US gallon per day</source>
        <translation>американський галон за добу</translation>
    </message>
    <message>
        <source>US million gallon per day</source>
        <translation>мільйон американських галонів за добу</translation>
    </message>
    <message>
        <source>cubic foot per day</source>
        <translatorcomment>CLDR: кубічний фут на день</translatorcomment>
        <translation>кубічний фут на день</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translatorcomment>CLDR: кубічний метр на день</translatorcomment>
        <translation>кубічний метр на день</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translatorcomment>CLDR: кубічний ярд на хвилину</translatorcomment>
        <translation>кубічний ярд на хвилину</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translatorcomment>CLDR: акр-фут на день</translatorcomment>
        <translation>акр-фут на день</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translatorcomment>CLDR: акр-фут на годину</translatorcomment>
        <translation>акр-фут на годину</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translatorcomment>CLDR: акр-фут на хвилину</translatorcomment>
        <translation>акр-фут на хвилину</translation>
    </message>
    <message>
        <source>acre inch per hour</source>
        <translation>акр-дюйм за годину</translation>
    </message>
    <message>
        <source>acre inch per minute</source>
        <translation>акр-дюйм за хвилину</translation>
    </message>
    <message>
        <source>cubic survey foot per second</source>
        <translation>кубічний геодезичний фут за секунду</translation>
    </message>
    <message>
        <source>kilogram per second</source>
        <translatorcomment>CLDR: кілограм на секунду</translatorcomment>
        <translation>кілограм на секунду</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translatorcomment>CLDR: кілограм на хвилину</translatorcomment>
        <translation>кілограм на хвилину</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translatorcomment>CLDR: кілограм на годину</translatorcomment>
        <translation>кілограм на годину</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translatorcomment>CLDR: грам на секунду</translatorcomment>
        <translation>грам на секунду</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translatorcomment>CLDR: грам на хвилину</translatorcomment>
        <translation>грам на хвилину</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translatorcomment>CLDR: грам на годину</translatorcomment>
        <translation>грам на годину</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translatorcomment>CLDR: фунт на секунду</translatorcomment>
        <translation>фунт на секунду</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translatorcomment>CLDR: фунт на хвилину</translatorcomment>
        <translation>фунт на хвилину</translation>
    </message>
    <message>
        <source>pound per hour</source>
        <translatorcomment>CLDR: фунт на годину</translatorcomment>
        <translation>фунт на годину</translation>
    </message>
    <message>
        <source>pint per stroke</source>
        <translation>пінта за хід</translation>
    </message>
    <message>
        <source>quart per stroke</source>
        <translation>кварта за хід</translation>
    </message>
    <message>
        <source>newton</source>
        <translatorcomment>CLDR: ньютон</translatorcomment>
        <translation>ньютон</translation>
    </message>
    <message>
        <source>yottanewton</source>
        <translatorcomment>CLDR: йотаньютон</translatorcomment>
        <translation>йотаньютон</translation>
    </message>
    <message>
        <source>zettanewton</source>
        <translatorcomment>CLDR: зетаньютон</translatorcomment>
        <translation>зетаньютон</translation>
    </message>
    <message>
        <source>exanewton</source>
        <translatorcomment>CLDR: ексаньютон</translatorcomment>
        <translation>ексаньютон</translation>
    </message>
    <message>
        <source>petanewton</source>
        <translatorcomment>CLDR: петаньютон</translatorcomment>
        <translation>петаньютон</translation>
    </message>
    <message>
        <source>teranewton</source>
        <translatorcomment>CLDR: тераньютон</translatorcomment>
        <translation>тераньютон</translation>
    </message>
    <message>
        <source>giganewton</source>
        <translatorcomment>CLDR: гіганьютон</translatorcomment>
        <translation>гіганьютон</translation>
    </message>
    <message>
        <source>meganewton</source>
        <translatorcomment>CLDR: меганьютон</translatorcomment>
        <translation>меганьютон</translation>
    </message>
    <message>
        <source>kilonewton</source>
        <translatorcomment>CLDR: кілоньютон</translatorcomment>
        <translation>кілоньютон</translation>
    </message>
    <message>
        <source>hectonewton</source>
        <translatorcomment>CLDR: гектоньютон</translatorcomment>
        <translation>гектоньютон</translation>
    </message>
    <message>
        <source>decanewton</source>
        <translatorcomment>CLDR: деканьютон</translatorcomment>
        <translation>деканьютон</translation>
    </message>
    <message>
        <source>decinewton</source>
        <translatorcomment>CLDR: дециньютон</translatorcomment>
        <translation>дециньютон</translation>
    </message>
    <message>
        <source>centinewton</source>
        <translatorcomment>CLDR: сантиньютон</translatorcomment>
        <translation>сантиньютон</translation>
    </message>
    <message>
        <source>millinewton</source>
        <translatorcomment>CLDR: міліньютон</translatorcomment>
        <translation>міліньютон</translation>
    </message>
    <message>
        <source>micronewton</source>
        <translatorcomment>CLDR: мікроньютон</translatorcomment>
        <translation>мікроньютон</translation>
    </message>
    <message>
        <source>nanonewton</source>
        <translatorcomment>CLDR: наноньютон</translatorcomment>
        <translation>наноньютон</translation>
    </message>
    <message>
        <source>piconewton</source>
        <translatorcomment>CLDR: піконьютон</translatorcomment>
        <translation>піконьютон</translation>
    </message>
    <message>
        <source>femtonewton</source>
        <translatorcomment>CLDR: фемтоньютон</translatorcomment>
        <translation>фемтоньютон</translation>
    </message>
    <message>
        <source>attonewton</source>
        <translatorcomment>CLDR: атоньютон</translatorcomment>
        <translation>атоньютон</translation>
    </message>
    <message>
        <source>zeptonewton</source>
        <translatorcomment>CLDR: зептоньютон</translatorcomment>
        <translation>зептоньютон</translation>
    </message>
    <message>
        <source>yoctonewton</source>
        <translatorcomment>CLDR: йоктоньютон</translatorcomment>
        <translation>йоктоньютон</translation>
    </message>
    <message>
        <source>kilopound</source>
        <translation>кілофунт</translation>
    </message>
    <message>
        <source>kilogram-force</source>
        <translation>кілограм-сила</translation>
    </message>
    <message>
        <source>pound force</source>
        <translatorcomment>CLDR: фунт-сила</translatorcomment>
        <translation>фунт-сила</translation>
    </message>
    <message>
        <source>kip</source>
        <translation>кіп</translation>
    </message>
    <message>
        <source>ton force</source>
        <translation>тонна-сила</translation>
    </message>
    <message>
        <source>dyne</source>
        <translation>дина</translation>
    </message>
    <message>
        <source>lbforce</source>
        <translation>lbf (фунт-сила)</translation>
    </message>
    <message>
        <source>ounce force</source>
        <translation>унція-сила</translation>
    </message>
    <message>
        <source>newton per meter</source>
        <translatorcomment>CLDR: ньютон на метр</translatorcomment>
        <translation>ньютон на метр</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>кілофунт на фут</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>кілограм-сила на метр</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>тонна-сила на метр</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>фунт-сила на фут</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translatorcomment>CLDR: деканьютон на метр</translatorcomment>
        <translation>деканьютон на метр</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translatorcomment>CLDR: кілоньютон на метр</translatorcomment>
        <translation>кілоньютон на метр</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
        <translatorcomment>CLDR: меганьютон на метр</translatorcomment>
        <translation>меганьютон на метр</translation>
    </message>
    <message>
        <source>kip per foot</source>
        <translation>кіп на фут</translation>
    </message>
    <message>
        <source>kip per inch</source>
        <translation>кіп на дюйм</translation>
    </message>
    <message>
        <source>hertz</source>
        <translatorcomment>CLDR: герц</translatorcomment>
        <translation>герц</translation>
    </message>
    <message>
        <source>kilohertz</source>
        <translatorcomment>CLDR: кілогерц</translatorcomment>
        <translation>кілогерц</translation>
    </message>
    <message>
        <source>megahertz</source>
        <translatorcomment>CLDR: мегагерц</translatorcomment>
        <translation>мегагерц</translation>
    </message>
    <message>
        <source>gigahertz</source>
        <translatorcomment>CLDR: гігагерц</translatorcomment>
        <translation>гігагерц</translation>
    </message>
    <message>
        <source>terahertz</source>
        <translatorcomment>CLDR: терагерц</translatorcomment>
        <translation>терагерц</translation>
    </message>
    <message>
        <source>cycle per second</source>
        <translation>цикл за секунду</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translatorcomment>CLDR: оберт на хвилину</translatorcomment>
        <translation>оберт на хвилину</translation>
    </message>
    <message>
        <source>flash per second</source>
        <translation>спалах за секунду</translation>
    </message>
    <message>
        <source>flash per minute</source>
        <translation>спалах за хвилину</translation>
    </message>
    <message>
        <source>henry</source>
        <translation>генрі</translation>
    </message>
    <message>
        <source>nanohenry</source>
        <translation>наногенрі</translation>
    </message>
    <message>
        <source>microhenry</source>
        <translation>мікрогенрі</translation>
    </message>
    <message>
        <source>millihenry</source>
        <translation>мілігенрі</translation>
    </message>
    <message>
        <source>gauss</source>
        <translation>гаус</translation>
    </message>
    <message>
        <source>milligauss</source>
        <translation>мілігаус</translation>
    </message>
    <message>
        <source>tesla</source>
        <translation>тесла</translation>
    </message>
    <message>
        <source>gamma</source>
        <translation>гамма</translation>
    </message>
    <message>
        <source>weber</source>
        <translation>вебер</translation>
    </message>
    <message>
        <source>maxwell</source>
        <translation>максвел</translation>
    </message>
    <message>
        <source>watt</source>
        <translatorcomment>CLDR: ват</translatorcomment>
        <translation>ват</translation>
    </message>
    <message>
        <source>horsepower (metric)</source>
        <translation>кінська сила (метрична)</translation>
    </message>
    <message>
        <source>horsepower (European electrical)</source>
        <translation>кінська сила (європейська електрична)</translation>
    </message>
    <message>
        <source>horsepower (Imperial mechanical)</source>
        <translation>кінська сила (британська механічна)</translation>
    </message>
    <message>
        <source>horsepower (Imperial electrical)</source>
        <translation>кінська сила (британська електрична)</translation>
    </message>
    <message>
        <source>kilocalorie per hour</source>
        <translatorcomment>CLDR: кілокалорія на годину</translatorcomment>
        <translation>кілокалорія на годину</translation>
    </message>
    <message>
        <source>kilowatt</source>
        <translatorcomment>CLDR: кіловат</translatorcomment>
        <translation>кіловат</translation>
    </message>
    <message>
        <source>megawatt</source>
        <translatorcomment>CLDR: мегават</translatorcomment>
        <translation>мегават</translation>
    </message>
    <message>
        <source>microwatt</source>
        <translatorcomment>CLDR: мікроват</translatorcomment>
        <translation>мікроват</translation>
    </message>
    <message>
        <source>volt ampere</source>
        <translation>вольт-ампер</translation>
    </message>
    <message>
        <source>millivolt ampere</source>
        <translation>мілівольт-ампер</translation>
    </message>
    <message>
        <source>kilovolt ampere</source>
        <translation>кіловольт-ампер</translation>
    </message>
    <message>
        <source>megavolt ampere</source>
        <translation>мегавольт-ампер</translation>
    </message>
    <message>
        <source>milliwatt</source>
        <translatorcomment>CLDR: міліват</translatorcomment>
        <translation>міліват</translation>
    </message>
    <message>
        <source>kilogram force meter per second</source>
        <translation>кілограм-сила-метр за секунду</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>фут-фунт-сила за секунду</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translatorcomment>CLDR: калорія на секунду</translatorcomment>
        <translation>калорія на секунду</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
        <translatorcomment>CLDR: кілокалорія на секунду</translatorcomment>
        <translation>кілокалорія на секунду</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per second</source>
        <translation>британська теплова одиниця (міжнародна) за секунду</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per hour</source>
        <translation>британська теплова одиниця (міжнародна) за годину</translation>
    </message>
    <message>
        <source>million British thermal unit (International Table) per hour</source>
        <translation>мільйон британських теплових одиниць (міжнародних) за годину</translation>
    </message>
    <message>
        <source>thousand British thermal unit (International Table) per hour</source>
        <translation>тисяча британських теплових одиниць (міжнародних) за годину</translation>
    </message>
    <message>
        <source>ton of refrigeration</source>
        <translation>тонна охолодження</translation>
    </message>
    <message>
        <source>watt per cubic meter</source>
        <translatorcomment>CLDR: ват на кубічний метр</translatorcomment>
        <translation>ват на кубічний метр</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translatorcomment>CLDR: ват на кубічний фут</translatorcomment>
        <translation>ват на кубічний фут</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>британська теплова одиниця за годину на кубічний фут</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translatorcomment>CLDR: ват на кілограм</translatorcomment>
        <translation>ват на кілограм</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translatorcomment>CLDR: ват на квадратний метр</translatorcomment>
        <translation>ват на квадратний метр</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translatorcomment>CLDR: кіловат на квадратний метр</translatorcomment>
        <translation>кіловат на квадратний метр</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translatorcomment>CLDR: кіловат на квадратний фут</translatorcomment>
        <translation>кіловат на квадратний фут</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translatorcomment>CLDR: ват на квадратний фут</translatorcomment>
        <translation>ват на квадратний фут</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>британська теплова одиниця за годину на квадратний фут</translation>
    </message>
    <message>
        <source>bar</source>
        <translatorcomment>CLDR: бар</translatorcomment>
        <translation>бар</translation>
    </message>
    <message>
        <source>bar absolute</source>
        <translation>бар абсолютний</translation>
    </message>
    <message>
        <source>bar gauge</source>
        <translation>бар надлишковий</translation>
    </message>
    <message>
        <source>inch of mercury</source>
        <translatorcomment>CLDR: дюйм ртутного стовпа</translatorcomment>
        <translation>дюйм ртутного стовпа</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>дюйм водяного стовпа</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translatorcomment>CLDR: кілобар</translatorcomment>
        <translation>кілобар</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translatorcomment>CLDR: кілограм на квадратний сантиметр</translatorcomment>
        <translation>кілограм на квадратний сантиметр</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translatorcomment>CLDR: кілопаскаль</translatorcomment>
        <translation>кілопаскаль</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translatorcomment>CLDR: кілофунт квадратний дюйм</translatorcomment>
        <translation>кілофунт квадратний дюйм</translation>
    </message>
    <message>
        <source>mega pascal</source>
        <translatorcomment>CLDR: мегапаскаль</translatorcomment>
        <translation>мегапаскаль</translation>
    </message>
    <message>
        <source>millibar</source>
        <translatorcomment>CLDR: мілібар</translatorcomment>
        <translation>мілібар</translation>
    </message>
    <message>
        <source>millimeter of mercury</source>
        <translatorcomment>CLDR: міліметр ртутного стовпа</translatorcomment>
        <translation>міліметр ртутного стовпа</translation>
    </message>
    <message>
        <source>milli pascal</source>
        <translatorcomment>CLDR: міліпаскаль</translatorcomment>
        <translation>міліпаскаль</translation>
    </message>
    <message>
        <source>pascal</source>
        <translatorcomment>CLDR: паскаль</translatorcomment>
        <translation>паскаль</translation>
    </message>
    <message>
        <source>pound per square inch (atmosphere)</source>
        <translation>фунт на квадратний дюйм (абсолютний)</translation>
    </message>
    <message>
        <source>pound per square inch (gauge)</source>
        <translation>фунт на квадратний дюйм (надлишковий)</translation>
    </message>
    <message>
        <source>pound per square foot</source>
        <translatorcomment>CLDR: фунт на квадратний фут</translatorcomment>
        <translation>фунт на квадратний фут</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translatorcomment>CLDR: фунт квадратний дюйм</translatorcomment>
        <translation>фунт квадратний дюйм</translation>
    </message>
    <message>
        <source>atmosphere (standard)</source>
        <translation>атмосфера (фізична)</translation>
    </message>
    <message>
        <source>atmosphere (metric)</source>
        <translation>атмосфера (технічна)</translation>
    </message>
    <message>
        <source>torr</source>
        <translation>торр</translation>
    </message>
    <message>
        <source>newton per square millimeter</source>
        <translatorcomment>CLDR: ньютон на квадратний міліметр</translatorcomment>
        <translation>ньютон на квадратний міліметр</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translatorcomment>CLDR: ньютон на квадратний метр</translatorcomment>
        <translation>ньютон на квадратний метр</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translatorcomment>CLDR: деканьютон на квадратний міліметр</translatorcomment>
        <translation>деканьютон на квадратний міліметр</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translatorcomment>CLDR: деканьютон на квадратний метр</translatorcomment>
        <translation>деканьютон на квадратний метр</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translatorcomment>CLDR: кілоньютон на квадратний метр</translatorcomment>
        <translation>кілоньютон на квадратний метр</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translatorcomment>CLDR: меганьютон на квадратний метр</translatorcomment>
        <translation>меганьютон на квадратний метр</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translatorcomment>CLDR: кілофунт на квадратний фут</translatorcomment>
        <translation>кілофунт на квадратний фут</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>кілограм-сила на квадратний міліметр</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>кілограм-сила на квадратний сантиметр</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>кілограм-сила на квадратний метр</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>тонна-сила на квадратний сантиметр</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>тонна-сила на квадратний метр</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>тонна-сила на квадратний фут</translation>
    </message>
    <message>
        <source>pound force per square inch</source>
        <translation>фунт-сила на квадратний дюйм</translation>
    </message>
    <message>
        <source>foot of water</source>
        <translation>фут водяного стовпа</translation>
    </message>
    <message>
        <source>kip per square inch</source>
        <translation>кіп на квадратний дюйм</translation>
    </message>
    <message>
        <source>kip per square foot</source>
        <translation>кіп на квадратний фут</translation>
    </message>
    <message>
        <source>pound force per square foot</source>
        <translation>фунт-сила на квадратний фут</translation>
    </message>
    <message>
        <source>gigapascal</source>
        <translatorcomment>CLDR: гігапаскаль</translatorcomment>
        <translation>гігапаскаль</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>дина на квадратний сантиметр</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translatorcomment>CLDR: ньютон на квадратний мікрометр</translatorcomment>
        <translation>ньютон на квадратний мікрометр</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translatorcomment>CLDR: метр на ньютон</translatorcomment>
        <translation>метр на ньютон</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translatorcomment>CLDR: метр на кілоньютон</translatorcomment>
        <translation>метр на кілоньютон</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>фут на кіп</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translatorcomment>CLDR: квадратний метр на ньютон</translatorcomment>
        <translation>квадратний метр на ньютон</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translatorcomment>CLDR: квадратний метр на кілоньютон</translatorcomment>
        <translation>квадратний метр на кілоньютон</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>квадратний фут на кіп</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translatorcomment>CLDR: кубічний метр на ньютон</translatorcomment>
        <translation>кубічний метр на ньютон</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translatorcomment>CLDR: кубічний метр на кілоньютон</translatorcomment>
        <translation>кубічний метр на кілоньютон</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>кубічний фут на кіп</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translatorcomment>CLDR: ньютон-метр на метр</translatorcomment>
        <translation>ньютон-метр на метр</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translatorcomment>CLDR: деканьютон-метр на метр</translatorcomment>
        <translation>деканьютон-метр на метр</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translatorcomment>CLDR: кілоньютон-метр на метр</translatorcomment>
        <translation>кілоньютон-метр на метр</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translatorcomment>CLDR: меганьютон-метр на метр</translatorcomment>
        <translation>меганьютон-метр на метр</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>кіп-фут на фут</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>кілограм-сила-метр на метр</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>тонна-сила-метр на метр</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translatorcomment>CLDR: фунт-фут на фут</translatorcomment>
        <translation>фунт-фут на фут</translation>
    </message>
    <message>
        <source>ohm</source>
        <translatorcomment>CLDR: ом</translatorcomment>
        <translation>ом</translation>
    </message>
    <message>
        <source>kilohm</source>
        <translatorcomment>CLDR: кілоом</translatorcomment>
        <translation>кілоом</translation>
    </message>
    <message>
        <source>gigaohm</source>
        <translatorcomment>CLDR: гігаом</translatorcomment>
        <translation>гігаом</translation>
    </message>
    <message>
        <source>megohm</source>
        <translatorcomment>CLDR: мегаом</translatorcomment>
        <translation>мегаом</translation>
    </message>
    <message>
        <source>microohm</source>
        <translatorcomment>CLDR: мікроом</translatorcomment>
        <translation>мікроом</translation>
    </message>
    <message>
        <source>milliohm</source>
        <translatorcomment>CLDR: міліом</translatorcomment>
        <translation>міліом</translation>
    </message>
    <message>
        <source>siemens</source>
        <translation>сименс</translation>
    </message>
    <message>
        <source>mho</source>
        <translation>мо</translation>
    </message>
    <message>
        <source>meter per second</source>
        <translatorcomment>CLDR: метр на секунду</translatorcomment>
        <translation>метр на секунду</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translatorcomment>CLDR: міліметр на секунду</translatorcomment>
        <translation>міліметр на секунду</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translatorcomment>CLDR: сантиметр на секунду</translatorcomment>
        <translation>сантиметр на секунду</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translatorcomment>CLDR: метр на хвилину</translatorcomment>
        <translation>метр на хвилину</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translatorcomment>CLDR: дюйм на секунду</translatorcomment>
        <translation>дюйм на секунду</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translatorcomment>CLDR: фут на секунду</translatorcomment>
        <translation>фут на секунду</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translatorcomment>CLDR: дюйм на хвилину</translatorcomment>
        <translation>дюйм на хвилину</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translatorcomment>CLDR: фут на хвилину</translatorcomment>
        <translation>фут на хвилину</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translatorcomment>CLDR: кілометр на годину</translatorcomment>
        <translation>кілометр на годину</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translatorcomment>CLDR: миля на годину</translatorcomment>
        <translation>миля на годину</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translatorcomment>CLDR: сантиметр на хвилину</translatorcomment>
        <translation>сантиметр на хвилину</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translatorcomment>CLDR: фут на годину</translatorcomment>
        <translation>фут на годину</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translatorcomment>CLDR: дюйм на годину</translatorcomment>
        <translation>дюйм на годину</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translatorcomment>CLDR: кілометр на хвилину</translatorcomment>
        <translation>кілометр на хвилину</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translatorcomment>CLDR: кілометр на секунду</translatorcomment>
        <translation>кілометр на секунду</translation>
    </message>
    <message>
        <source>knot</source>
        <translatorcomment>CLDR: вузол</translatorcomment>
        <translation>вузол</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>вузол (Велика Британія)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translatorcomment>CLDR: метр на годину</translatorcomment>
        <translation>метр на годину</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translatorcomment>CLDR: миля на хвилину</translatorcomment>
        <translation>миля на хвилину</translation>
    </message>
    <message>
        <source>mile per second</source>
        <translatorcomment>CLDR: миля на секунду</translatorcomment>
        <translation>миля на секунду</translation>
    </message>
    <message>
        <source>survey mile per hour</source>
        <translation>геодезична миля за годину</translation>
    </message>
    <message>
        <source>survey foot per second</source>
        <translation>геодезичний фут за секунду</translation>
    </message>
    <message>
        <source>byte</source>
        <translatorcomment>CLDR: байт</translatorcomment>
        <translation>байт</translation>
    </message>
    <message>
        <source>bit</source>
        <translatorcomment>CLDR: біт</translatorcomment>
        <translation>біт</translation>
    </message>
    <message>
        <source>kilobyte</source>
        <translatorcomment>CLDR: кілобайт</translatorcomment>
        <translation>кілобайт</translation>
    </message>
    <message>
        <source>megabyte</source>
        <translatorcomment>CLDR: мегабайт</translatorcomment>
        <translation>мегабайт</translation>
    </message>
    <message>
        <source>gigabyte</source>
        <translatorcomment>CLDR: гігабайт</translatorcomment>
        <translation>гігабайт</translation>
    </message>
    <message>
        <source>terabyte</source>
        <translatorcomment>CLDR: терабайт</translatorcomment>
        <translation>терабайт</translation>
    </message>
    <message>
        <source>kibibyte</source>
        <translatorcomment>CLDR: кібібайт</translatorcomment>
        <translation>кібібайт</translation>
    </message>
    <message>
        <source>mebibyte</source>
        <translatorcomment>CLDR: мебібайт</translatorcomment>
        <translation>мебібайт</translation>
    </message>
    <message>
        <source>gibibyte</source>
        <translatorcomment>CLDR: гібібайт</translatorcomment>
        <translation>гібібайт</translation>
    </message>
    <message>
        <source>tebibyte</source>
        <translatorcomment>CLDR: тебібайт</translatorcomment>
        <translation>тебібайт</translation>
    </message>
    <message>
        <source>kilobit</source>
        <translatorcomment>CLDR: кілобіт</translatorcomment>
        <translation>кілобіт</translation>
    </message>
    <message>
        <source>megabit</source>
        <translatorcomment>CLDR: мегабіт</translatorcomment>
        <translation>мегабіт</translation>
    </message>
    <message>
        <source>gigabit</source>
        <translatorcomment>CLDR: гігабіт</translatorcomment>
        <translation>гігабіт</translation>
    </message>
    <message>
        <source>petabyte</source>
        <translatorcomment>CLDR: петабайт</translatorcomment>
        <translation>петабайт</translation>
    </message>
    <message>
        <source>pebibyte</source>
        <translatorcomment>CLDR: пебібайт</translatorcomment>
        <translation>пебібайт</translation>
    </message>
    <message>
        <source>exabyte</source>
        <translatorcomment>CLDR: ексабайт</translatorcomment>
        <translation>ексабайт</translation>
    </message>
    <message>
        <source>exbibyte</source>
        <translatorcomment>CLDR: ексбібайт</translatorcomment>
        <translation>ексбібайт</translation>
    </message>
    <message>
        <source>zettabyte</source>
        <translatorcomment>CLDR: зетабайт</translatorcomment>
        <translation>зетабайт</translation>
    </message>
    <message>
        <source>zebibyte</source>
        <translatorcomment>CLDR: зебібайт</translatorcomment>
        <translation>зебібайт</translation>
    </message>
    <message>
        <source>yottabyte</source>
        <translatorcomment>CLDR: йотабайт</translatorcomment>
        <translation>йотабайт</translation>
    </message>
    <message>
        <source>yobibyte</source>
        <translatorcomment>CLDR: йобібайт</translatorcomment>
        <translation>йобібайт</translation>
    </message>
    <message>
        <source>kelvin</source>
        <translatorcomment>CLDR: кельвін</translatorcomment>
        <translation>кельвін</translation>
    </message>
    <message>
        <source>degree Celsius</source>
        <translatorcomment>CLDR: градус Цельсія</translatorcomment>
        <translation>градус Цельсія</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translatorcomment>CLDR: градус Фаренгейта</translatorcomment>
        <translation>градус Фаренгейта</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>градус Ранкіна</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translatorcomment>CLDR: градус Цельсія на хвилину</translatorcomment>
        <translation>градус Цельсія на хвилину</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translatorcomment>CLDR: градус Фаренгейта на хвилину</translatorcomment>
        <translation>градус Фаренгейта на хвилину</translation>
    </message>
    <message>
        <source>second</source>
        <translatorcomment>CLDR: секунда</translatorcomment>
        <translation>секунда</translation>
    </message>
    <message>
        <source>yottasecond</source>
        <translatorcomment>CLDR: йотасекунда</translatorcomment>
        <translation>йотасекунда</translation>
    </message>
    <message>
        <source>zettasecond</source>
        <translatorcomment>CLDR: зетасекунда</translatorcomment>
        <translation>зетасекунда</translation>
    </message>
    <message>
        <source>exasecond</source>
        <translatorcomment>CLDR: ексасекунда</translatorcomment>
        <translation>ексасекунда</translation>
    </message>
    <message>
        <source>petasecond</source>
        <translatorcomment>CLDR: петасекунда</translatorcomment>
        <translation>петасекунда</translation>
    </message>
    <message>
        <source>terasecond</source>
        <translatorcomment>CLDR: терасекунда</translatorcomment>
        <translation>терасекунда</translation>
    </message>
    <message>
        <source>gigasecond</source>
        <translatorcomment>CLDR: гігасекунда</translatorcomment>
        <translation>гігасекунда</translation>
    </message>
    <message>
        <source>megasecond</source>
        <translatorcomment>CLDR: мегасекунда</translatorcomment>
        <translation>мегасекунда</translation>
    </message>
    <message>
        <source>kilosecond</source>
        <translatorcomment>CLDR: кілосекунда</translatorcomment>
        <translation>кілосекунда</translation>
    </message>
    <message>
        <source>hectosecond</source>
        <translatorcomment>CLDR: гектосекунда</translatorcomment>
        <translation>гектосекунда</translation>
    </message>
    <message>
        <source>decasecond</source>
        <translatorcomment>CLDR: декасекунда</translatorcomment>
        <translation>декасекунда</translation>
    </message>
    <message>
        <source>decisecond</source>
        <translatorcomment>CLDR: децисекунда</translatorcomment>
        <translation>децисекунда</translation>
    </message>
    <message>
        <source>centisecond</source>
        <translatorcomment>CLDR: сантисекунда</translatorcomment>
        <translation>сантисекунда</translation>
    </message>
    <message>
        <source>millisecond</source>
        <translatorcomment>CLDR: мілісекунда</translatorcomment>
        <translation>мілісекунда</translation>
    </message>
    <message>
        <source>microsecond</source>
        <translatorcomment>CLDR: мікросекунда</translatorcomment>
        <translation>мікросекунда</translation>
    </message>
    <message>
        <source>nanosecond</source>
        <translatorcomment>CLDR: наносекунда</translatorcomment>
        <translation>наносекунда</translation>
    </message>
    <message>
        <source>picosecond</source>
        <translatorcomment>CLDR: пікосекунда</translatorcomment>
        <translation>пікосекунда</translation>
    </message>
    <message>
        <source>femtosecond</source>
        <translatorcomment>CLDR: фемтосекунда</translatorcomment>
        <translation>фемтосекунда</translation>
    </message>
    <message>
        <source>attosecond</source>
        <translatorcomment>CLDR: атосекунда</translatorcomment>
        <translation>атосекунда</translation>
    </message>
    <message>
        <source>zeptosecond</source>
        <translatorcomment>CLDR: зептосекунда</translatorcomment>
        <translation>зептосекунда</translation>
    </message>
    <message>
        <source>yoctosecond</source>
        <translatorcomment>CLDR: йоктосекунда</translatorcomment>
        <translation>йоктосекунда</translation>
    </message>
    <message>
        <source>minute</source>
        <translatorcomment>CLDR: хвилина</translatorcomment>
        <translation>хвилина</translation>
    </message>
    <message>
        <source>hour</source>
        <translatorcomment>CLDR: година</translatorcomment>
        <translation>година</translation>
    </message>
    <message>
        <source>day</source>
        <translatorcomment>CLDR: день</translatorcomment>
        <translation>день</translation>
    </message>
    <message>
        <source>week</source>
        <translatorcomment>CLDR: тиждень</translatorcomment>
        <translation>тиждень</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>два тижні</translation>
    </message>
    <message>
        <source>month</source>
        <translatorcomment>CLDR: місяць</translatorcomment>
        <translation>місяць</translation>
    </message>
    <message>
        <source>month (hollow)</source>
        <translation>місяць (неповний, 29 днів)</translation>
    </message>
    <message>
        <source>month (full)</source>
        <translation>місяць (повний, 30 днів)</translation>
    </message>
    <message>
        <source>year</source>
        <translatorcomment>CLDR: рік</translatorcomment>
        <translation>рік</translation>
    </message>
    <message>
        <source>year (Gregorian)</source>
        <translation>рік (григоріанський)</translation>
    </message>
    <message>
        <source>year (Julian)</source>
        <translation>рік (юліанський)</translation>
    </message>
    <message>
        <source>sidereal year</source>
        <translation>зоряний рік</translation>
    </message>
    <message>
        <source>tropical year</source>
        <translation>тропічний рік</translation>
    </message>
    <message>
        <source>annum</source>
        <translation>аннум</translation>
    </message>
    <message>
        <source>decade</source>
        <translatorcomment>CLDR: десятиріччя</translatorcomment>
        <translation>десятиріччя</translation>
    </message>
    <message>
        <source>century</source>
        <translatorcomment>CLDR: століття</translatorcomment>
        <translation>століття</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>століття (юліанське)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>тисячоліття</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>тисячоліття (григоріанське)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>тисячоліття (юліанське)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>ньютон-метр (момент)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>ньютон-сантиметр (момент)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>ньютон-декаметр (момент)</translation>
    </message>
    <message>
        <source>foot pound (torque)</source>
        <translation>фут-фунт (момент)</translation>
    </message>
    <message>
        <source>inch pound (torque)</source>
        <translation>дюйм-фунт (момент)</translation>
    </message>
    <message>
        <source>meter kilogram (torque)</source>
        <translation>метр-кілограм (момент)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>сантиметр-кілограм (момент)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>дюйм-унція (момент)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>грам-сантиметр (момент)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>деканьютон-метр (момент)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>кілоньютон-метр (момент)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>меганьютон-метр (момент)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>кіп-фут (момент)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>кілограм-сила-метр (момент)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>тонна-сила-метр (момент)</translation>
    </message>
    <message>
        <source>pound force foot (torque)</source>
        <translation>фунт-сила-фут (момент)</translation>
    </message>
    <message>
        <source>poise</source>
        <translation>пуаз</translation>
    </message>
    <message>
        <source>centipoise</source>
        <translation>сантипуаз</translation>
    </message>
    <message>
        <source>pascal second</source>
        <translation>паскаль-секунда</translation>
    </message>
    <message>
        <source>pound mass per foot second</source>
        <translation>фунт маси на фут-секунду</translation>
    </message>
    <message>
        <source>pound mass per foot hour</source>
        <translation>фунт маси на фут-годину</translation>
    </message>
    <message>
        <source>stoke</source>
        <translation>стокс</translation>
    </message>
    <message>
        <source>centistoke</source>
        <translation>сантистокс</translation>
    </message>
    <message>
        <source>meter per second squared</source>
        <translatorcomment>CLDR: метр на секунду у квадраті</translatorcomment>
        <translation>метр на секунду у квадраті</translation>
    </message>
    <message>
        <source>foot per second squared</source>
        <translation>фут на секунду в квадраті</translation>
    </message>
    <message>
        <source>survey foot per second squared</source>
        <translation>геодезичний фут на секунду в квадраті</translation>
    </message>
    <message>
        <source>volt</source>
        <translatorcomment>CLDR: вольт</translatorcomment>
        <translation>вольт</translation>
    </message>
    <message>
        <source>kilovolt</source>
        <translatorcomment>CLDR: кіловольт</translatorcomment>
        <translation>кіловольт</translation>
    </message>
    <message>
        <source>microvolt</source>
        <translatorcomment>CLDR: мікровольт</translatorcomment>
        <translation>мікровольт</translation>
    </message>
    <message>
        <source>millivolt</source>
        <translatorcomment>CLDR: мілівольт</translatorcomment>
        <translation>мілівольт</translation>
    </message>
    <message>
        <source>volt (electrical potential)</source>
        <translation>вольт (електричний потенціал)</translation>
    </message>
    <message>
        <source>abvolt</source>
        <translation>абвольт</translation>
    </message>
    <message>
        <source>statvolt</source>
        <translation>статвольт</translation>
    </message>
    <message>
        <source>candela</source>
        <translatorcomment>CLDR: кандела</translatorcomment>
        <translation>кандела</translation>
    </message>
    <message>
        <source>lumen per steradian</source>
        <translation>люмен на стерадіан</translation>
    </message>
    <message>
        <source>candlepower</source>
        <translation>свічка (candlepower)</translation>
    </message>
    <message>
        <source>Lux (Illuminance)</source>
        <translation>люкс (освітленість)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>фут-свічка</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translation>люмен-секунда</translation>
    </message>
    <message>
        <source>talbots</source>
        <translation>тальбот</translation>
    </message>
    <message>
        <source>luminous power</source>
        <translation>світлова потужність</translation>
    </message>
    <message>
        <source>lumen</source>
        <translatorcomment>CLDR: люмен</translatorcomment>
        <translation>люмен</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translatorcomment>CLDR: кандела на квадратний метр</translatorcomment>
        <translation>кандела на квадратний метр</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>фут-ламберт</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translatorcomment>CLDR: кандела на квадратний фут</translatorcomment>
        <translation>кандела на квадратний фут</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>люкс (світність)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translatorcomment>CLDR: люмен на ват</translatorcomment>
        <translation>люмен на ват</translation>
    </message>
    <message>
        <source>pascal per meter</source>
        <translatorcomment>CLDR: паскаль на метр</translatorcomment>
        <translation>паскаль на метр</translation>
    </message>
    <message>
        <source>inch of water per 100foot</source>
        <translation>дюйм водяного стовпа на 100 футів</translation>
    </message>
    <message>
        <source>foot of water per 100foot</source>
        <translation>фут водяного стовпа на 100 футів</translation>
    </message>
    <message>
        <source>inch of mercury per 100foot</source>
        <translation>дюйм ртутного стовпа на 100 футів</translation>
    </message>
    <message>
        <source>millimeter of mercury per 100foot</source>
        <translation>міліметр ртутного стовпа на 100 футів</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translatorcomment>CLDR: ньютон-метр на градус</translatorcomment>
        <translation>ньютон-метр на градус</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>кіп-фут на градус</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translatorcomment>CLDR: кілоньютон-метр на градус</translatorcomment>
        <translation>кілоньютон-метр на градус</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>ньютон-метр на градус на метр</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>кіп-фут на градус на фут</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>кілоньютон-метр на градус на метр</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>ват на квадратний метр-кельвін</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>британська теплова одиниця за годину на квадратний фут і градус Фаренгейта</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>кубічний метр за секунду на квадратний метр</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>кубічний фут за хвилину на квадратний фут</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>літр за секунду на квадратний метр</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>кубічний метр за секунду на кубічний метр</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>кубічний фут за хвилину на кубічний фут</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>літр за секунду на кубічний метр</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>кубічний метр за секунду на ват</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>кубічний фут за хвилину на тонну охолодження</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>літр за секунду на кіловат</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translatorcomment>CLDR: квадратний метр на ват</translatorcomment>
        <translation>квадратний метр на ват</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>квадратний фут на тонну охолодження</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translatorcomment>CLDR: квадратний метр на кіловат</translatorcomment>
        <translation>квадратний метр на кіловат</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>квадратний фут на тисячу британських теплових одиниць за годину</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>секунда в квадраті на метр-кілограм</translation>
    </message>
    <message>
        <source>inverse kilonewton</source>
        <translation>обернений кілоньютон</translation>
    </message>
    <message>
        <source>inverse kip</source>
        <translation>обернений кіп</translation>
    </message>
    <message>
        <source>inverse fahrenheit</source>
        <translation>обернений градус Фаренгейта</translation>
    </message>
    <message>
        <source>inverse celsius</source>
        <translation>обернений градус Цельсія</translation>
    </message>
    <message>
        <source>micrometer per meter celsius</source>
        <translation>мікрометр на метр і градус Цельсія</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>мікродюйм на дюйм і градус Фаренгейта</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>ерстед</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translatorcomment>CLDR: ампер на метр</translatorcomment>
        <translation>ампер на метр</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>ват на метр-кельвін</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>ват на метр і градус Цельсія</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>ньютон на секунду і градус Цельсія</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>дина на секунду і градус Цельсія</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>БТО-дюйм на квадратний фут, годину і градус Фаренгейта</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>БТО на дюйм, секунду і градус Фаренгейта</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>БТО на фут, секунду і градус Фаренгейта</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>БТО на фут, годину і градус Фаренгейта</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>джоуль на грам-градус Цельсія</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>джоуль на кілограм-градус Цельсія</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>квадратний міліметр на секунду в квадраті і градус Цельсія</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>ерг на грам-градус Цельсія</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>квадратний мікрометр на секунду в квадраті і градус Цельсія</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>БТО на фунт-градус Фаренгейта</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>нанограм на паскаль-секунду-квадратний метр</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>гран на квадратний фут, годину і дюйм ртутного стовпа</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translation>ом-метр</translation>
    </message>
    <message>
        <source>joule per gram</source>
        <translatorcomment>CLDR: джоуль на грам</translatorcomment>
        <translation>джоуль на грам</translation>
    </message>
    <message>
        <source>joule per kilogram</source>
        <translatorcomment>CLDR: джоуль на кілограм</translatorcomment>
        <translation>джоуль на кілограм</translation>
    </message>
    <message>
        <source>BTU per pound</source>
        <translation>БТО на фунт</translation>
    </message>
</context>
</TS>
