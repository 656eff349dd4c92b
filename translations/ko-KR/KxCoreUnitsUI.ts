<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>NumberFormat</name>
    <message>
        <source>Exponential</source>
        <translation>지수</translation>
    </message>
    <message>
        <source>exponential</source>
        <translation>지수 (소문자)</translation>
    </message>
    <message>
        <source>Fixed Point</source>
        <translation>고정 소수점</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>general</source>
        <translation>일반 (소문자)</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>숫자</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>분수</translation>
    </message>
</context>
<context>
    <name>UnitGroup</name>
    <message>
        <source>Dimensionless</source>
        <translation>무차원</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>길이</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>넓이</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>부피</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>질량</translation>
    </message>
    <message>
        <source>Linear Weight</source>
        <translation>선밀도</translation>
    </message>
    <message>
        <source>Amount of Substance</source>
        <translation>물질량</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>각도</translation>
    </message>
    <message>
        <source>Solid Angle</source>
        <translation>입체각</translation>
    </message>
    <message>
        <source>Area Density</source>
        <translation>면밀도</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>농도</translation>
    </message>
    <message>
        <source>Parts-per</source>
        <translation>비율 (ppm, ppb)</translation>
    </message>
    <message>
        <source>Electric Current</source>
        <translation>전류</translation>
    </message>
    <message>
        <source>Electric Charge</source>
        <translation>전하</translation>
    </message>
    <message>
        <source>Capacitance</source>
        <translation>전기 용량</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>비트 전송률</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>밀도</translation>
    </message>
    <message>
        <source>Unit Weight</source>
        <translation>단위 중량</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>에너지</translation>
    </message>
    <message>
        <source>Volumetric Flow Rate</source>
        <translation>체적 유량</translation>
    </message>
    <message>
        <source>Mass Flow Rate</source>
        <translation>질량 유량</translation>
    </message>
    <message>
        <source>Flow Rate per Stroke</source>
        <translation>스트로크당 토출량</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>힘</translation>
    </message>
    <message>
        <source>Linear Force</source>
        <translation>선하중</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>주파수</translation>
    </message>
    <message>
        <source>Inductance</source>
        <translation>인덕턴스</translation>
    </message>
    <message>
        <source>Magnetic Flux Density</source>
        <translation>자속 밀도</translation>
    </message>
    <message>
        <source>Magnetic Flux</source>
        <translation>자속</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>일률</translation>
    </message>
    <message>
        <source>Power per Unit of Volume</source>
        <translation>단위 부피당 일률</translation>
    </message>
    <message>
        <source>Power per Unit of Mass</source>
        <translation>단위 질량당 일률</translation>
    </message>
    <message>
        <source>Power per Unit of Area</source>
        <translation>단위 면적당 일률</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>압력</translation>
    </message>
    <message>
        <source>Force Scale</source>
        <translation>힘 척도</translation>
    </message>
    <message>
        <source>Linear Force Scale</source>
        <translation>선하중 척도</translation>
    </message>
    <message>
        <source>Area Force Scale</source>
        <translation>면하중 척도</translation>
    </message>
    <message>
        <source>Linear Moment</source>
        <translation>선 모멘트</translation>
    </message>
    <message>
        <source>Electrical Resistance</source>
        <translation>전기 저항</translation>
    </message>
    <message>
        <source>Electric Conductance</source>
        <translation>전기 전도도</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>속도</translation>
    </message>
    <message>
        <source>Computer Storage</source>
        <translation>저장 용량</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>온도</translation>
    </message>
    <message>
        <source>Temperature Rate</source>
        <translation>온도 변화율</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>토크</translation>
    </message>
    <message>
        <source>Dynamic Viscosity</source>
        <translation>점성도</translation>
    </message>
    <message>
        <source>Kinematic Viscosity</source>
        <translation>동점성도</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>가속도</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>전압</translation>
    </message>
    <message>
        <source>Electric Potential</source>
        <translation>전위</translation>
    </message>
    <message>
        <source>Luminous Intensity</source>
        <translation>광도</translation>
    </message>
    <message>
        <source>Illuminance</source>
        <translation>조도</translation>
    </message>
    <message>
        <source>Luminous Energy</source>
        <translation>광량</translation>
    </message>
    <message>
        <source>Luminous Flux</source>
        <translation>광선속</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>휘도</translation>
    </message>
    <message>
        <source>Luminous Emittance</source>
        <translation>광속 발산도</translation>
    </message>
    <message>
        <source>Luminous Efficacy</source>
        <translation>발광 효율</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>마찰 손실</translation>
    </message>
    <message>
        <source>Rotational Point Spring Coefficient</source>
        <translation>점 회전 스프링 계수</translation>
    </message>
    <message>
        <source>Rotational Line Spring Coefficient</source>
        <translation>선 회전 스프링 계수</translation>
    </message>
    <message>
        <source>Heat Transfer Coefficient</source>
        <translation>열전달 계수</translation>
    </message>
    <message>
        <source>Airflow Density</source>
        <translation>풍량 밀도</translation>
    </message>
    <message>
        <source>Airflow Divided by Volume</source>
        <translation>부피당 풍량</translation>
    </message>
    <message>
        <source>Airflow Divided by Power</source>
        <translation>출력당 풍량</translation>
    </message>
    <message>
        <source>Area Divided by Power</source>
        <translation>출력당 면적</translation>
    </message>
    <message>
        <source>Moment Scale</source>
        <translation>모멘트 척도</translation>
    </message>
    <message>
        <source>Coefficient of Thermal Expansion</source>
        <translation>열팽창 계수</translation>
    </message>
    <message>
        <source>Magnetic Field Intensity</source>
        <translation>자기장 세기</translation>
    </message>
    <message>
        <source>Thermal Conductivity</source>
        <translation>열전도율</translation>
    </message>
    <message>
        <source>Specific Heat</source>
        <translation>비열</translation>
    </message>
    <message>
        <source>Permeability</source>
        <translation>투습도</translation>
    </message>
    <message>
        <source>Electrical Resistivity</source>
        <translation>비저항</translation>
    </message>
    <message>
        <source>Specific Heat of Vaporization</source>
        <translation>증발열</translation>
    </message>
</context>
<context>
    <name>UnitType</name>
    <message>
        <source>unitless</source>
        <translation>단위 없음</translation>
    </message>
    <message>
        <source>meter</source>
        <translatorcomment>CLDR: 미터</translatorcomment>
        <translation>미터</translation>
    </message>
    <message>
        <source>yottameter</source>
        <translatorcomment>CLDR: 요타미터</translatorcomment>
        <translation>요타미터</translation>
    </message>
    <message>
        <source>zettameter</source>
        <translatorcomment>CLDR: 제타미터</translatorcomment>
        <translation>제타미터</translation>
    </message>
    <message>
        <source>exameter</source>
        <translatorcomment>CLDR: 엑사미터</translatorcomment>
        <translation>엑사미터</translation>
    </message>
    <message>
        <source>petameter</source>
        <translatorcomment>CLDR: 페타미터</translatorcomment>
        <translation>페타미터</translation>
    </message>
    <message>
        <source>terameter</source>
        <translatorcomment>CLDR: 테라미터</translatorcomment>
        <translation>테라미터</translation>
    </message>
    <message>
        <source>gigameter</source>
        <translatorcomment>CLDR: 기가미터</translatorcomment>
        <translation>기가미터</translation>
    </message>
    <message>
        <source>megameter</source>
        <translatorcomment>CLDR: 메가미터</translatorcomment>
        <translation>메가미터</translation>
    </message>
    <message>
        <source>kilometer</source>
        <translatorcomment>CLDR: 킬로미터</translatorcomment>
        <translation>킬로미터</translation>
    </message>
    <message>
        <source>hectometer</source>
        <translatorcomment>CLDR: 헥토미터</translatorcomment>
        <translation>헥토미터</translation>
    </message>
    <message>
        <source>decameter</source>
        <translatorcomment>CLDR: 데카미터</translatorcomment>
        <translation>데카미터</translation>
    </message>
    <message>
        <source>decimeter</source>
        <translatorcomment>CLDR: 데시미터</translatorcomment>
        <translation>데시미터</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translatorcomment>CLDR: 센티미터</translatorcomment>
        <translation>센티미터</translation>
    </message>
    <message>
        <source>millimeter</source>
        <translatorcomment>CLDR: 밀리미터</translatorcomment>
        <translation>밀리미터</translation>
    </message>
    <message>
        <source>micrometer</source>
        <translatorcomment>CLDR: 마이크로미터</translatorcomment>
        <translation>마이크로미터</translation>
    </message>
    <message>
        <source>nanometer</source>
        <translatorcomment>CLDR: 나노미터</translatorcomment>
        <translation>나노미터</translation>
    </message>
    <message>
        <source>picometer</source>
        <translatorcomment>CLDR: 피코미터</translatorcomment>
        <translation>피코미터</translation>
    </message>
    <message>
        <source>femtometer</source>
        <translatorcomment>CLDR: 펨토미터</translatorcomment>
        <translation>펨토미터</translation>
    </message>
    <message>
        <source>attometer</source>
        <translatorcomment>CLDR: 아토미터</translatorcomment>
        <translation>아토미터</translation>
    </message>
    <message>
        <source>zeptometer</source>
        <translatorcomment>CLDR: 젭토미터</translatorcomment>
        <translation>젭토미터</translation>
    </message>
    <message>
        <source>yoctometer</source>
        <translatorcomment>CLDR: 욕토미터</translatorcomment>
        <translation>욕토미터</translation>
    </message>
    <message>
        <source>inch</source>
        <translatorcomment>CLDR: 인치</translatorcomment>
        <translation>인치</translation>
    </message>
    <message>
        <source>foot</source>
        <translatorcomment>CLDR: 피트</translatorcomment>
        <translation>피트</translation>
    </message>
    <message>
        <source>foot (Benoit)</source>
        <translation>피트 (브누아)</translation>
    </message>
    <message>
        <source>foot (Clarke&apos;s; Cape)</source>
        <translation>피트 (클라크, 케이프)</translation>
    </message>
    <message>
        <source>foot (Indian)</source>
        <translation>피트 (인도)</translation>
    </message>
    <message>
        <source>foot (Sear&apos;s)</source>
        <translation>피트 (시어스)</translation>
    </message>
    <message>
        <source>foot (U.S. Survey)</source>
        <translation>미국 측량 피트</translation>
    </message>
    <message>
        <source>yard</source>
        <translatorcomment>CLDR: 야드</translatorcomment>
        <translation>야드</translation>
    </message>
    <message>
        <source>chain</source>
        <translation>체인</translation>
    </message>
    <message>
        <source>chain (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>체인 (램즈든, 기술자)</translation>
    </message>
    <message>
        <source>furlong</source>
        <translatorcomment>CLDR: 펄롱</translatorcomment>
        <translation>펄롱</translation>
    </message>
    <message>
        <source>mile</source>
        <translatorcomment>CLDR: 마일</translatorcomment>
        <translation>마일</translation>
    </message>
    <message>
        <source>geographical mile</source>
        <translation>지리 마일</translation>
    </message>
    <message>
        <source>mile (U.S. Survey)</source>
        <translation>미국 측량 마일</translation>
    </message>
    <message>
        <source>nautical mile</source>
        <translatorcomment>CLDR: 해리</translatorcomment>
        <translation>해리</translation>
    </message>
    <message>
        <source>statute mile</source>
        <translation>법정 마일</translation>
    </message>
    <message>
        <source>nautical mile (admiralty)</source>
        <translation>해리 (영국 해군)</translation>
    </message>
    <message>
        <source>micron</source>
        <translation>미크론</translation>
    </message>
    <message>
        <source>microinch</source>
        <translatorcomment>CLDR: 마이크로인치</translatorcomment>
        <translation>마이크로인치</translation>
    </message>
    <message>
        <source>angstrom</source>
        <translation>옹스트롬</translation>
    </message>
    <message>
        <source>astronomical unit</source>
        <translatorcomment>CLDR: 천문 단위</translatorcomment>
        <translation>천문 단위</translation>
    </message>
    <message>
        <source>cable</source>
        <translation>케이블 (해상)</translation>
    </message>
    <message>
        <source>cubit</source>
        <translation>큐빗</translation>
    </message>
    <message>
        <source>fathom</source>
        <translatorcomment>CLDR: 패덤</translatorcomment>
        <translation>패덤</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>핸드</translation>
    </message>
    <message>
        <source>light-year</source>
        <translatorcomment>CLDR: 광년</translatorcomment>
        <translation>광년</translation>
    </message>
    <message>
        <source>span</source>
        <translation>스팬</translation>
    </message>
    <message>
        <source>span (cloth)</source>
        <translation>스팬 (천)</translation>
    </message>
    <message>
        <source>parsec</source>
        <translatorcomment>CLDR: 파섹</translatorcomment>
        <translation>파섹</translation>
    </message>
    <message>
        <source>nautical league</source>
        <translation>해상 리그</translation>
    </message>
    <message>
        <source>league</source>
        <translation>리그</translation>
    </message>
    <message>
        <source>mil</source>
        <translation>밀 (1/1000 인치)</translation>
    </message>
    <message>
        <source>mil (Sweden and Norway)</source>
        <translation>스칸디나비아 마일 (스웨덴, 노르웨이)</translation>
    </message>
    <message>
        <source>link</source>
        <translation>링크</translation>
    </message>
    <message>
        <source>link (Ramsden&apos;s; Engineer&apos;s)</source>
        <translation>링크 (램즈든, 기술자)</translation>
    </message>
    <message>
        <source>pace</source>
        <translation>페이스</translation>
    </message>
    <message>
        <source>palm</source>
        <translation>팜</translation>
    </message>
    <message>
        <source>rod</source>
        <translation>로드</translation>
    </message>
    <message>
        <source>rope</source>
        <translation>로프</translation>
    </message>
    <message>
        <source>skein</source>
        <translation>스케인</translation>
    </message>
    <message>
        <source>caliber</source>
        <translation>구경</translation>
    </message>
    <message>
        <source>survey inch</source>
        <translation>측량 인치</translation>
    </message>
    <message>
        <source>survey yard</source>
        <translation>측량 야드</translation>
    </message>
    <message>
        <source>survey rod</source>
        <translation>측량 로드</translation>
    </message>
    <message>
        <source>bolt</source>
        <translation>볼트 (천)</translation>
    </message>
    <message>
        <source>square meter</source>
        <translatorcomment>CLDR: 제곱미터</translatorcomment>
        <translation>제곱미터</translation>
    </message>
    <message>
        <source>square inch</source>
        <translatorcomment>CLDR: 제곱인치</translatorcomment>
        <translation>제곱인치</translation>
    </message>
    <message>
        <source>square foot</source>
        <translatorcomment>CLDR: 제곱피트</translatorcomment>
        <translation>제곱피트</translation>
    </message>
    <message>
        <source>square yard</source>
        <translatorcomment>CLDR: 제곱야드</translatorcomment>
        <translation>제곱야드</translation>
    </message>
    <message>
        <source>acre</source>
        <translatorcomment>CLDR: 에이커</translatorcomment>
        <translation>에이커</translation>
    </message>
    <message>
        <source>section</source>
        <translation>섹션</translation>
    </message>
    <message>
        <source>township</source>
        <translation>타운십</translation>
    </message>
    <message>
        <source>hectare</source>
        <translatorcomment>CLDR: 헥타르</translatorcomment>
        <translation>헥타르</translation>
    </message>
    <message>
        <source>square kilometer</source>
        <translatorcomment>CLDR: 제곱킬로미터</translatorcomment>
        <translation>제곱킬로미터</translation>
    </message>
    <message>
        <source>square mile</source>
        <translatorcomment>CLDR: 제곱마일</translatorcomment>
        <translation>제곱마일</translation>
    </message>
    <message>
        <source>square centimeter</source>
        <translatorcomment>CLDR: 제곱센티미터</translatorcomment>
        <translation>제곱센티미터</translation>
    </message>
    <message>
        <source>square millimeter</source>
        <translatorcomment>CLDR: 제곱밀리미터</translatorcomment>
        <translation>제곱밀리미터</translation>
    </message>
    <message>
        <source>circular mil</source>
        <translation>서큘러 밀</translation>
    </message>
    <message>
        <source>kilo-circular mil</source>
        <translation>킬로 서큘러 밀</translation>
    </message>
    <message>
        <source>are</source>
        <translation>아르</translation>
    </message>
    <message>
        <source>barn</source>
        <translation>반</translation>
    </message>
    <message>
        <source>centare</source>
        <translation>센티아르</translation>
    </message>
    <message>
        <source>square angstrom</source>
        <translation>제곱옹스트롬</translation>
    </message>
    <message>
        <source>square bolt</source>
        <translation>제곱볼트 (천)</translation>
    </message>
    <message>
        <source>square cable</source>
        <translation>제곱케이블</translation>
    </message>
    <message>
        <source>square caliber</source>
        <translation>제곱구경</translation>
    </message>
    <message>
        <source>square cubit</source>
        <translation>제곱큐빗</translation>
    </message>
    <message>
        <source>square decimeter</source>
        <translatorcomment>CLDR: 제곱데시미터</translatorcomment>
        <translation>제곱데시미터</translation>
    </message>
    <message>
        <source>square fathom</source>
        <translatorcomment>CLDR: 제곱패덤</translatorcomment>
        <translation>제곱패덤</translation>
    </message>
    <message>
        <source>square furlong</source>
        <translatorcomment>CLDR: 제곱펄롱</translatorcomment>
        <translation>제곱펄롱</translation>
    </message>
    <message>
        <source>square gigameter</source>
        <translatorcomment>CLDR: 제곱기가미터</translatorcomment>
        <translation>제곱기가미터</translation>
    </message>
    <message>
        <source>square hand</source>
        <translation>제곱핸드</translation>
    </message>
    <message>
        <source>square nautical league</source>
        <translation>제곱해상 리그</translation>
    </message>
    <message>
        <source>square league (statute)</source>
        <translation>제곱리그 (법정)</translation>
    </message>
    <message>
        <source>square light-year</source>
        <translatorcomment>CLDR: 제곱광년</translatorcomment>
        <translation>제곱광년</translation>
    </message>
    <message>
        <source>square link</source>
        <translation>제곱링크</translation>
    </message>
    <message>
        <source>square micron</source>
        <translation>제곱미크론</translation>
    </message>
    <message>
        <source>square mile (UK nautical)</source>
        <translation>제곱마일 (영국 해리)</translation>
    </message>
    <message>
        <source>square mile (statute)</source>
        <translation>제곱마일 (법정)</translation>
    </message>
    <message>
        <source>square millimicron</source>
        <translation>제곱밀리미크론</translation>
    </message>
    <message>
        <source>square pace</source>
        <translation>제곱페이스</translation>
    </message>
    <message>
        <source>square palm</source>
        <translation>제곱팜</translation>
    </message>
    <message>
        <source>square parsec</source>
        <translatorcomment>CLDR: 제곱파섹</translatorcomment>
        <translation>제곱파섹</translation>
    </message>
    <message>
        <source>square perch</source>
        <translation>제곱퍼치</translation>
    </message>
    <message>
        <source>square rope</source>
        <translation>제곱로프</translation>
    </message>
    <message>
        <source>square skein</source>
        <translation>제곱스케인</translation>
    </message>
    <message>
        <source>square span</source>
        <translation>제곱스팬</translation>
    </message>
    <message>
        <source>square survey foot</source>
        <translation>제곱측량 피트</translation>
    </message>
    <message>
        <source>square chain</source>
        <translation>제곱체인</translation>
    </message>
    <message>
        <source>square mil</source>
        <translation>제곱밀</translation>
    </message>
    <message>
        <source>square astronomical unit</source>
        <translatorcomment>CLDR: 제곱천문 단위</translatorcomment>
        <translation>제곱천문 단위</translation>
    </message>
    <message>
        <source>survey acre</source>
        <translation>측량 에이커</translation>
    </message>
    <message>
        <source>square survey yard</source>
        <translation>제곱측량 야드</translation>
    </message>
    <message>
        <source>board</source>
        <translation>보드</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>코드 (면적)</translation>
    </message>
    <message>
        <source>square microinch</source>
        <translation>제곱마이크로인치</translation>
    </message>
    <message>
        <source>square micrometer</source>
        <translatorcomment>CLDR: 제곱마이크로미터</translatorcomment>
        <translation>제곱마이크로미터</translation>
    </message>
    <message>
        <source>liter</source>
        <translatorcomment>CLDR: 리터</translatorcomment>
        <translation>리터</translation>
    </message>
    <message>
        <source>cubic centimeter</source>
        <translatorcomment>CLDR: 세제곱센티미터</translatorcomment>
        <translation>세제곱센티미터</translation>
    </message>
    <message>
        <source>tablespoon</source>
        <translatorcomment>CLDR: 테이블스푼</translatorcomment>
        <translation>테이블스푼</translation>
    </message>
    <message>
        <source>tablespoon (Canadian)</source>
        <translation>테이블스푼 (캐나다)</translation>
    </message>
    <message>
        <source>tablespoon (U.S.)</source>
        <translation>테이블스푼 (미국)</translation>
    </message>
    <message>
        <source>fluid ounce (imperial)</source>
        <translation>액량 온스 (영국)</translation>
    </message>
    <message>
        <source>fluid ounce (U.S.)</source>
        <translation>액량 온스 (미국)</translation>
    </message>
    <message>
        <source>cup</source>
        <translation>컵</translation>
    </message>
    <message>
        <source>cup (Canadian)</source>
        <translation>컵 (캐나다)</translation>
    </message>
    <message>
        <source>cup (U.S.)</source>
        <translation>컵 (미국)</translation>
    </message>
    <message>
        <source>quart (imperial)</source>
        <translation>쿼트 (영국)</translation>
    </message>
    <message>
        <source>quart (U.S. fluid)</source>
        <translation>쿼트 (미국 액량)</translation>
    </message>
    <message>
        <source>quart (U.S. dry)</source>
        <translation>쿼트 (미국 건량)</translation>
    </message>
    <message>
        <source>gallon (imperial)</source>
        <translation>갤런 (영국)</translation>
    </message>
    <message>
        <source>gallon (U.S. fluid; Wine)</source>
        <translation>갤런 (미국 액량, 와인)</translation>
    </message>
    <message>
        <source>gallon (U.S. dry)</source>
        <translation>갤런 (미국 건량)</translation>
    </message>
    <message>
        <source>beer gallon</source>
        <translation>맥주 갤런</translation>
    </message>
    <message>
        <source>bushel (imperial)</source>
        <translation>부셸 (영국)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry level)</source>
        <translation>부셸 (미국, 평미레)</translation>
    </message>
    <message>
        <source>bushel (U.S. dry heaped)</source>
        <translation>부셸 (미국, 고봉)</translation>
    </message>
    <message>
        <source>centiliter</source>
        <translatorcomment>CLDR: 센티리터</translatorcomment>
        <translation>센티리터</translation>
    </message>
    <message>
        <source>cubic foot</source>
        <translatorcomment>CLDR: 세제곱피트</translatorcomment>
        <translation>세제곱피트</translation>
    </message>
    <message>
        <source>cubic inch</source>
        <translatorcomment>CLDR: 세제곱인치</translatorcomment>
        <translation>세제곱인치</translation>
    </message>
    <message>
        <source>cubic meter</source>
        <translatorcomment>CLDR: 세제곱미터</translatorcomment>
        <translation>세제곱미터</translation>
    </message>
    <message>
        <source>cubic yard</source>
        <translatorcomment>CLDR: 세제곱야드</translatorcomment>
        <translation>세제곱야드</translation>
    </message>
    <message>
        <source>fluid dram</source>
        <translation>액량 드램 (미국)</translation>
    </message>
    <message>
        <source>microliter</source>
        <translatorcomment>CLDR: 마이크로리터</translatorcomment>
        <translation>마이크로리터</translation>
    </message>
    <message>
        <source>milliliter</source>
        <translatorcomment>CLDR: 밀리리터</translatorcomment>
        <translation>밀리리터</translation>
    </message>
    <message>
        <source>pint (imperial)</source>
        <translation>파인트 (영국)</translation>
    </message>
    <message>
        <source>pint (U.S. fluid)</source>
        <translation>파인트 (미국 액량)</translation>
    </message>
    <message>
        <source>pint (U.S. dry)</source>
        <translation>파인트 (미국 건량)</translation>
    </message>
    <message>
        <source>teaspoon</source>
        <translatorcomment>CLDR: 티스푼</translatorcomment>
        <translation>티스푼</translation>
    </message>
    <message>
        <source>teaspoon (Canadian)</source>
        <translation>티스푼 (캐나다)</translation>
    </message>
    <message>
        <source>teaspoon (U.S.)</source>
        <translation>티스푼 (미국)</translation>
    </message>
    <message>
        <source>teaspoon (imperial)</source>
        <translation>티스푼 (영국)</translation>
    </message>
    <message>
        <source>cubic millimeter</source>
        <translatorcomment>CLDR: 세제곱밀리미터</translatorcomment>
        <translation>세제곱밀리미터</translation>
    </message>
    <message>
        <source>barrel (imperial)</source>
        <translation>배럴 (영국)</translation>
    </message>
    <message>
        <source>barrel (petroleum)</source>
        <translation>배럴 (석유)</translation>
    </message>
    <message>
        <source>barrel (U.S. dry)</source>
        <translation>배럴 (미국 건량)</translation>
    </message>
    <message>
        <source>barrel (U.S. fluid)</source>
        <translation>배럴 (미국 액량)</translation>
    </message>
    <message>
        <source>board-foot</source>
        <translation>보드 피트</translation>
    </message>
    <message>
        <source>decistere</source>
        <translation>데시스테르</translation>
    </message>
    <message>
        <source>dekaliter</source>
        <translatorcomment>CLDR: 데카리터</translatorcomment>
        <translation>데카리터</translation>
    </message>
    <message>
        <source>dekastere</source>
        <translation>데카스테르</translation>
    </message>
    <message>
        <source>dram</source>
        <translatorcomment>CLDR: 영국 액량 드램</translatorcomment>
        <translation>영국 액량 드램</translation>
    </message>
    <message>
        <source>firkin</source>
        <translation>퍼킨</translation>
    </message>
    <message>
        <source>cubic angstrom</source>
        <translation>세제곱옹스트롬</translation>
    </message>
    <message>
        <source>cubic astronomical unit</source>
        <translatorcomment>CLDR: 세제곱천문 단위</translatorcomment>
        <translation>세제곱천문 단위</translation>
    </message>
    <message>
        <source>cubic bolt</source>
        <translation>세제곱볼트 (천)</translation>
    </message>
    <message>
        <source>cubic cable</source>
        <translation>세제곱케이블</translation>
    </message>
    <message>
        <source>cubic caliber</source>
        <translation>세제곱구경</translation>
    </message>
    <message>
        <source>cubic chain</source>
        <translation>세제곱체인</translation>
    </message>
    <message>
        <source>cubic cubit</source>
        <translation>세제곱큐빗</translation>
    </message>
    <message>
        <source>cubic fathom</source>
        <translatorcomment>CLDR: 세제곱패덤</translatorcomment>
        <translation>세제곱패덤</translation>
    </message>
    <message>
        <source>cubic furlong</source>
        <translatorcomment>CLDR: 세제곱펄롱</translatorcomment>
        <translation>세제곱펄롱</translation>
    </message>
    <message>
        <source>cubic gigameter</source>
        <translatorcomment>CLDR: 세제곱기가미터</translatorcomment>
        <translation>세제곱기가미터</translation>
    </message>
    <message>
        <source>cubic hand</source>
        <translation>세제곱핸드</translation>
    </message>
    <message>
        <source>cubic hectometer</source>
        <translatorcomment>CLDR: 세제곱헥토미터</translatorcomment>
        <translation>세제곱헥토미터</translation>
    </message>
    <message>
        <source>cubic nautical league</source>
        <translation>세제곱해상 리그</translation>
    </message>
    <message>
        <source>cubic league (statute)</source>
        <translation>세제곱리그 (법정)</translation>
    </message>
    <message>
        <source>cubic light-year</source>
        <translatorcomment>CLDR: 세제곱광년</translatorcomment>
        <translation>세제곱광년</translation>
    </message>
    <message>
        <source>cubic link</source>
        <translation>세제곱링크</translation>
    </message>
    <message>
        <source>cubic mil</source>
        <translation>세제곱밀</translation>
    </message>
    <message>
        <source>cubic mile (UK nautical)</source>
        <translation>세제곱마일 (영국 해리)</translation>
    </message>
    <message>
        <source>cubic mile</source>
        <translatorcomment>CLDR: 세제곱마일</translatorcomment>
        <translation>세제곱마일</translation>
    </message>
    <message>
        <source>cubic nautical mile</source>
        <translatorcomment>CLDR: 세제곱해리</translatorcomment>
        <translation>세제곱해리</translation>
    </message>
    <message>
        <source>cubic mile (statute)</source>
        <translation>세제곱마일 (법정)</translation>
    </message>
    <message>
        <source>cubic millimicron</source>
        <translation>세제곱밀리미크론</translation>
    </message>
    <message>
        <source>cubic pace</source>
        <translation>세제곱페이스</translation>
    </message>
    <message>
        <source>cubic palm</source>
        <translation>세제곱팜</translation>
    </message>
    <message>
        <source>cubic parsec</source>
        <translatorcomment>CLDR: 세제곱파섹</translatorcomment>
        <translation>세제곱파섹</translation>
    </message>
    <message>
        <source>cubic perch</source>
        <translation>세제곱퍼치</translation>
    </message>
    <message>
        <source>cubic rope</source>
        <translation>세제곱로프</translation>
    </message>
    <message>
        <source>cubic skein</source>
        <translation>세제곱스케인</translation>
    </message>
    <message>
        <source>cubic span</source>
        <translation>세제곱스팬</translation>
    </message>
    <message>
        <source>cubic survey foot</source>
        <translation>세제곱측량 피트</translation>
    </message>
    <message>
        <source>cubic decimeter</source>
        <translatorcomment>CLDR: 세제곱데시미터</translatorcomment>
        <translation>세제곱데시미터</translation>
    </message>
    <message>
        <source>tun</source>
        <translation>턴 (통)</translation>
    </message>
    <message>
        <source>peck</source>
        <translation>펙</translation>
    </message>
    <message>
        <source>peck (U.S. dry)</source>
        <translation>펙 (미국 건량)</translation>
    </message>
    <message>
        <source>peck (imperial)</source>
        <translation>펙 (영국)</translation>
    </message>
    <message>
        <source>minim (imperial)</source>
        <translation>미님 (영국)</translation>
    </message>
    <message>
        <source>minim (U.S.)</source>
        <translation>미님 (미국)</translation>
    </message>
    <message>
        <source>kiloliter</source>
        <translatorcomment>CLDR: 킬로리터</translatorcomment>
        <translation>킬로리터</translation>
    </message>
    <message>
        <source>hogshead (U.S.)</source>
        <translation>혹스헤드 (미국)</translation>
    </message>
    <message>
        <source>hogshead (imperial)</source>
        <translation>혹스헤드 (영국)</translation>
    </message>
    <message>
        <source>gill (imperial)</source>
        <translation>질 (영국)</translation>
    </message>
    <message>
        <source>gill (U.S.)</source>
        <translation>질 (미국)</translation>
    </message>
    <message>
        <source>cubic survey yard</source>
        <translation>세제곱측량 야드</translation>
    </message>
    <message>
        <source>cord-foot</source>
        <translation>코드 피트</translation>
    </message>
    <message>
        <source>cord (firewood)</source>
        <translation>코드 (장작)</translation>
    </message>
    <message>
        <source>register ton</source>
        <translation>등록 톤</translation>
    </message>
    <message>
        <source>acre-foot</source>
        <translatorcomment>CLDR: 에이커 피트</translatorcomment>
        <translation>에이커 피트</translation>
    </message>
    <message>
        <source>acre-inch</source>
        <translation>에이커 인치</translation>
    </message>
    <message>
        <source>cubic microinch</source>
        <translation>세제곱마이크로인치</translation>
    </message>
    <message>
        <source>cubic micrometer</source>
        <translatorcomment>CLDR: 세제곱마이크로미터</translatorcomment>
        <translation>세제곱마이크로미터</translation>
    </message>
    <message>
        <source>cubic kilometer</source>
        <translatorcomment>CLDR: 세제곱킬로미터</translatorcomment>
        <translation>세제곱킬로미터</translation>
    </message>
    <message>
        <source>kilogram</source>
        <translatorcomment>CLDR: 킬로그램</translatorcomment>
        <translation>킬로그램</translation>
    </message>
    <message>
        <source>gram</source>
        <translatorcomment>CLDR: 그램</translatorcomment>
        <translation>그램</translation>
    </message>
    <message>
        <source>yottagram</source>
        <translatorcomment>CLDR: 요타그램</translatorcomment>
        <translation>요타그램</translation>
    </message>
    <message>
        <source>zettagram</source>
        <translatorcomment>CLDR: 제타그램</translatorcomment>
        <translation>제타그램</translation>
    </message>
    <message>
        <source>exagram</source>
        <translatorcomment>CLDR: 엑사그램</translatorcomment>
        <translation>엑사그램</translation>
    </message>
    <message>
        <source>petagram</source>
        <translatorcomment>CLDR: 페타그램</translatorcomment>
        <translation>페타그램</translation>
    </message>
    <message>
        <source>teragram</source>
        <translatorcomment>CLDR: 테라그램</translatorcomment>
        <translation>테라그램</translation>
    </message>
    <message>
        <source>gigagram</source>
        <translatorcomment>CLDR: 기가그램</translatorcomment>
        <translation>기가그램</translation>
    </message>
    <message>
        <source>megagram</source>
        <translatorcomment>CLDR: 메가그램</translatorcomment>
        <translation>메가그램</translation>
    </message>
    <message>
        <source>hectogram</source>
        <translatorcomment>CLDR: 헥토그램</translatorcomment>
        <translation>헥토그램</translation>
    </message>
    <message>
        <source>decagram</source>
        <translatorcomment>CLDR: 데카그램</translatorcomment>
        <translation>데카그램</translation>
    </message>
    <message>
        <source>decigram</source>
        <translatorcomment>CLDR: 데시그램</translatorcomment>
        <translation>데시그램</translation>
    </message>
    <message>
        <source>centigram</source>
        <translatorcomment>CLDR: 센티그램</translatorcomment>
        <translation>센티그램</translation>
    </message>
    <message>
        <source>milligram</source>
        <translatorcomment>CLDR: 밀리그램</translatorcomment>
        <translation>밀리그램</translation>
    </message>
    <message>
        <source>microgram</source>
        <translatorcomment>CLDR: 마이크로그램</translatorcomment>
        <translation>마이크로그램</translation>
    </message>
    <message>
        <source>nanogram</source>
        <translatorcomment>CLDR: 나노그램</translatorcomment>
        <translation>나노그램</translation>
    </message>
    <message>
        <source>picogram</source>
        <translatorcomment>CLDR: 피코그램</translatorcomment>
        <translation>피코그램</translation>
    </message>
    <message>
        <source>femtogram</source>
        <translatorcomment>CLDR: 펨토그램</translatorcomment>
        <translation>펨토그램</translation>
    </message>
    <message>
        <source>attogram</source>
        <translatorcomment>CLDR: 아토그램</translatorcomment>
        <translation>아토그램</translation>
    </message>
    <message>
        <source>zeptogram</source>
        <translatorcomment>CLDR: 젭토그램</translatorcomment>
        <translation>젭토그램</translation>
    </message>
    <message>
        <source>yoctogram</source>
        <translatorcomment>CLDR: 욕토그램</translatorcomment>
        <translation>욕토그램</translation>
    </message>
    <message>
        <source>pound (meter)</source>
        <translation>미터 파운드</translation>
    </message>
    <message>
        <source>pound</source>
        <translatorcomment>CLDR: 파운드</translatorcomment>
        <translation>파운드</translation>
    </message>
    <message>
        <source>pound (troy)</source>
        <translation>트로이 파운드</translation>
    </message>
    <message>
        <source>ounce (avoirdupois)</source>
        <translation>상형 온스</translation>
    </message>
    <message>
        <source>ounce (apothecary; troy)</source>
        <translation>약형 온스 (트로이)</translation>
    </message>
    <message>
        <source>stone</source>
        <translatorcomment>CLDR: 스톤</translatorcomment>
        <translation>스톤</translation>
    </message>
    <message>
        <source>short ton</source>
        <translation>쇼트톤</translation>
    </message>
    <message>
        <source>long ton</source>
        <translation>롱톤</translation>
    </message>
    <message>
        <source>carat</source>
        <translatorcomment>CLDR: 캐럿</translatorcomment>
        <translation>캐럿</translation>
    </message>
    <message>
        <source>carat (metric)</source>
        <translation>캐럿 (미터법)</translation>
    </message>
    <message>
        <source>dram (avoirdupois)</source>
        <translation>상형 드램</translation>
    </message>
    <message>
        <source>dram (apothecary; troy)</source>
        <translation>약형 드램 (트로이)</translation>
    </message>
    <message>
        <source>pennyweight</source>
        <translation>페니웨이트</translation>
    </message>
    <message>
        <source>tael</source>
        <translation>테일 (냥)</translation>
    </message>
    <message>
        <source>tola</source>
        <translation>톨라</translation>
    </message>
    <message>
        <source>long hundredweight</source>
        <translation>롱 헌드레드웨이트</translation>
    </message>
    <message>
        <source>short hundredweight</source>
        <translation>쇼트 헌드레드웨이트</translation>
    </message>
    <message>
        <source>grain</source>
        <translatorcomment>CLDR: 그레인</translatorcomment>
        <translation>그레인</translation>
    </message>
    <message>
        <source>pearl grain</source>
        <translation>진주 그레인</translation>
    </message>
    <message>
        <source>dalton</source>
        <translatorcomment>CLDR: 돌턴</translatorcomment>
        <translation>돌턴</translation>
    </message>
    <message>
        <source>kilodalton</source>
        <translatorcomment>CLDR: 킬로돌턴</translatorcomment>
        <translation>킬로돌턴</translation>
    </message>
    <message>
        <source>slug</source>
        <translation>슬러그</translation>
    </message>
    <message>
        <source>kilogram per meter</source>
        <translatorcomment>CLDR: 미터당 킬로그램</translatorcomment>
        <translation>미터당 킬로그램</translation>
    </message>
    <message>
        <source>pound per foot</source>
        <translatorcomment>CLDR: 피트당 파운드</translatorcomment>
        <translation>피트당 파운드</translation>
    </message>
    <message>
        <source>mole</source>
        <translatorcomment>CLDR: 몰</translatorcomment>
        <translation>몰</translation>
    </message>
    <message>
        <source>yottamole</source>
        <translatorcomment>CLDR: 요타몰</translatorcomment>
        <translation>요타몰</translation>
    </message>
    <message>
        <source>zettamole</source>
        <translatorcomment>CLDR: 제타몰</translatorcomment>
        <translation>제타몰</translation>
    </message>
    <message>
        <source>examole</source>
        <translatorcomment>CLDR: 엑사몰</translatorcomment>
        <translation>엑사몰</translation>
    </message>
    <message>
        <source>petamole</source>
        <translatorcomment>CLDR: 페타몰</translatorcomment>
        <translation>페타몰</translation>
    </message>
    <message>
        <source>teramole</source>
        <translatorcomment>CLDR: 테라몰</translatorcomment>
        <translation>테라몰</translation>
    </message>
    <message>
        <source>gigamole</source>
        <translatorcomment>CLDR: 기가몰</translatorcomment>
        <translation>기가몰</translation>
    </message>
    <message>
        <source>megamole</source>
        <translatorcomment>CLDR: 메가몰</translatorcomment>
        <translation>메가몰</translation>
    </message>
    <message>
        <source>kilomole</source>
        <translatorcomment>CLDR: 킬로몰</translatorcomment>
        <translation>킬로몰</translation>
    </message>
    <message>
        <source>hectomole</source>
        <translatorcomment>CLDR: 헥토몰</translatorcomment>
        <translation>헥토몰</translation>
    </message>
    <message>
        <source>decamole</source>
        <translatorcomment>CLDR: 데카몰</translatorcomment>
        <translation>데카몰</translation>
    </message>
    <message>
        <source>decimole</source>
        <translatorcomment>CLDR: 데시몰</translatorcomment>
        <translation>데시몰</translation>
    </message>
    <message>
        <source>centimole</source>
        <translatorcomment>CLDR: 센티몰</translatorcomment>
        <translation>센티몰</translation>
    </message>
    <message>
        <source>millimole</source>
        <translatorcomment>CLDR: 밀리몰</translatorcomment>
        <translation>밀리몰</translation>
    </message>
    <message>
        <source>micromole</source>
        <translatorcomment>CLDR: 마이크로몰</translatorcomment>
        <translation>마이크로몰</translation>
    </message>
    <message>
        <source>nanomole</source>
        <translatorcomment>CLDR: 나노몰</translatorcomment>
        <translation>나노몰</translation>
    </message>
    <message>
        <source>picomole</source>
        <translatorcomment>CLDR: 피코몰</translatorcomment>
        <translation>피코몰</translation>
    </message>
    <message>
        <source>femtomole</source>
        <translatorcomment>CLDR: 펨토몰</translatorcomment>
        <translation>펨토몰</translation>
    </message>
    <message>
        <source>attomole</source>
        <translatorcomment>CLDR: 아토몰</translatorcomment>
        <translation>아토몰</translation>
    </message>
    <message>
        <source>zeptomole</source>
        <translatorcomment>CLDR: 젭토몰</translatorcomment>
        <translation>젭토몰</translation>
    </message>
    <message>
        <source>yoctomole</source>
        <translatorcomment>CLDR: 욕토몰</translatorcomment>
        <translation>욕토몰</translation>
    </message>
    <message>
        <source>radian</source>
        <translatorcomment>CLDR: 라디안</translatorcomment>
        <translation>라디안</translation>
    </message>
    <message>
        <source>degree</source>
        <translatorcomment>CLDR: 도</translatorcomment>
        <translation>도</translation>
    </message>
    <message>
        <source>milliradian</source>
        <translatorcomment>CLDR: 밀리라디안</translatorcomment>
        <translation>밀리라디안</translation>
    </message>
    <message>
        <source>grad</source>
        <translation>그라드</translation>
    </message>
    <message>
        <source>angular mil (NATO)</source>
        <translation>밀 (NATO)</translation>
    </message>
    <message>
        <source>angular mil (Sweden)</source>
        <translation>밀 (스웨덴)</translation>
    </message>
    <message>
        <source>angular mil (USSR)</source>
        <translation>밀 (소련)</translation>
    </message>
    <message>
        <source>angle minute</source>
        <translatorcomment>CLDR: 분각</translatorcomment>
        <translation>분각</translation>
    </message>
    <message>
        <source>angle second</source>
        <translatorcomment>CLDR: 각초</translatorcomment>
        <translation>각초</translation>
    </message>
    <message>
        <source>milliarc second</source>
        <translation>밀리각초</translation>
    </message>
    <message>
        <source>steradian</source>
        <translation>스테라디안</translation>
    </message>
    <message>
        <source>gram per square meter</source>
        <translatorcomment>CLDR: 제곱미터당 그램</translatorcomment>
        <translation>제곱미터당 그램</translation>
    </message>
    <message>
        <source>gram per square inch</source>
        <translatorcomment>CLDR: 제곱인치당 그램</translatorcomment>
        <translation>제곱인치당 그램</translation>
    </message>
    <message>
        <source>nanogram per liter</source>
        <translatorcomment>CLDR: 리터당 나노그램</translatorcomment>
        <translation>리터당 나노그램</translation>
    </message>
    <message>
        <source>nanogram per deciliter</source>
        <translatorcomment>CLDR: 데시리터당 나노그램</translatorcomment>
        <translation>데시리터당 나노그램</translation>
    </message>
    <message>
        <source>nanogram per milliliter</source>
        <translatorcomment>CLDR: 밀리리터당 나노그램</translatorcomment>
        <translation>밀리리터당 나노그램</translation>
    </message>
    <message>
        <source>nanogram per microliter</source>
        <translatorcomment>CLDR: 마이크로리터당 나노그램</translatorcomment>
        <translation>마이크로리터당 나노그램</translation>
    </message>
    <message>
        <source>part per million</source>
        <translatorcomment>CLDR: ppm</translatorcomment>
        <translation>ppm</translation>
    </message>
    <message>
        <source>part per billion</source>
        <translation>십억분율</translation>
    </message>
    <message>
        <source>ampere</source>
        <translatorcomment>CLDR: 암페어</translatorcomment>
        <translation>암페어</translation>
    </message>
    <message>
        <source>yottaampere</source>
        <translatorcomment>CLDR: 요타암페어</translatorcomment>
        <translation>요타암페어</translation>
    </message>
    <message>
        <source>zettaampere</source>
        <translatorcomment>CLDR: 제타암페어</translatorcomment>
        <translation>제타암페어</translation>
    </message>
    <message>
        <source>exaampere</source>
        <translatorcomment>CLDR: 엑사암페어</translatorcomment>
        <translation>엑사암페어</translation>
    </message>
    <message>
        <source>petaampere</source>
        <translatorcomment>CLDR: 페타암페어</translatorcomment>
        <translation>페타암페어</translation>
    </message>
    <message>
        <source>teraampere</source>
        <translatorcomment>CLDR: 테라암페어</translatorcomment>
        <translation>테라암페어</translation>
    </message>
    <message>
        <source>gigaampere</source>
        <translatorcomment>CLDR: 기가암페어</translatorcomment>
        <translation>기가암페어</translation>
    </message>
    <message>
        <source>megaampere</source>
        <translatorcomment>CLDR: 메가암페어</translatorcomment>
        <translation>메가암페어</translation>
    </message>
    <message>
        <source>kiloampere</source>
        <translatorcomment>CLDR: 킬로암페어</translatorcomment>
        <translation>킬로암페어</translation>
    </message>
    <message>
        <source>hectoampere</source>
        <translatorcomment>CLDR: 헥토암페어</translatorcomment>
        <translation>헥토암페어</translation>
    </message>
    <message>
        <source>decaampere</source>
        <translatorcomment>CLDR: 데카암페어</translatorcomment>
        <translation>데카암페어</translation>
    </message>
    <message>
        <source>deciampere</source>
        <translatorcomment>CLDR: 데시암페어</translatorcomment>
        <translation>데시암페어</translation>
    </message>
    <message>
        <source>centiampere</source>
        <translatorcomment>CLDR: 센티암페어</translatorcomment>
        <translation>센티암페어</translation>
    </message>
    <message>
        <source>milliampere</source>
        <translatorcomment>CLDR: 밀리암페어</translatorcomment>
        <translation>밀리암페어</translation>
    </message>
    <message>
        <source>microampere</source>
        <translatorcomment>CLDR: 마이크로암페어</translatorcomment>
        <translation>마이크로암페어</translation>
    </message>
    <message>
        <source>nanoampere</source>
        <translatorcomment>CLDR: 나노암페어</translatorcomment>
        <translation>나노암페어</translation>
    </message>
    <message>
        <source>picoampere</source>
        <translatorcomment>CLDR: 피코암페어</translatorcomment>
        <translation>피코암페어</translation>
    </message>
    <message>
        <source>femtoampere</source>
        <translatorcomment>CLDR: 펨토암페어</translatorcomment>
        <translation>펨토암페어</translation>
    </message>
    <message>
        <source>attoampere</source>
        <translatorcomment>CLDR: 아토암페어</translatorcomment>
        <translation>아토암페어</translation>
    </message>
    <message>
        <source>zeptoampere</source>
        <translatorcomment>CLDR: 젭토암페어</translatorcomment>
        <translation>젭토암페어</translation>
    </message>
    <message>
        <source>yoctoampere</source>
        <translatorcomment>CLDR: 욕토암페어</translatorcomment>
        <translation>욕토암페어</translation>
    </message>
    <message>
        <source>coulomb</source>
        <translation>쿨롬</translation>
    </message>
    <message>
        <source>ampere hour</source>
        <translation>암페어시</translation>
    </message>
    <message>
        <source>milliampere hour</source>
        <translation>밀리암페어시</translation>
    </message>
    <message>
        <source>faraday</source>
        <translation>패러데이</translation>
    </message>
    <message>
        <source>farad</source>
        <translation>패럿</translation>
    </message>
    <message>
        <source>yottafarad</source>
        <translation>요타패럿</translation>
    </message>
    <message>
        <source>zettafarad</source>
        <translation>제타패럿</translation>
    </message>
    <message>
        <source>exafarad</source>
        <translation>엑사패럿</translation>
    </message>
    <message>
        <source>petafarad</source>
        <translation>페타패럿</translation>
    </message>
    <message>
        <source>terafarad</source>
        <translation>테라패럿</translation>
    </message>
    <message>
        <source>gigafarad</source>
        <translation>기가패럿</translation>
    </message>
    <message>
        <source>megafarad</source>
        <translation>메가패럿</translation>
    </message>
    <message>
        <source>kilofarad</source>
        <translation>킬로패럿</translation>
    </message>
    <message>
        <source>hectofarad</source>
        <translation>헥토패럿</translation>
    </message>
    <message>
        <source>decafarad</source>
        <translation>데카패럿</translation>
    </message>
    <message>
        <source>decifarad</source>
        <translation>데시패럿</translation>
    </message>
    <message>
        <source>centifarad</source>
        <translation>센티패럿</translation>
    </message>
    <message>
        <source>millifarad</source>
        <translation>밀리패럿</translation>
    </message>
    <message>
        <source>microfarad</source>
        <translation>마이크로패럿</translation>
    </message>
    <message>
        <source>nanofarad</source>
        <translation>나노패럿</translation>
    </message>
    <message>
        <source>picofarad</source>
        <translation>피코패럿</translation>
    </message>
    <message>
        <source>femtofarad</source>
        <translation>펨토패럿</translation>
    </message>
    <message>
        <source>attofarad</source>
        <translation>아토패럿</translation>
    </message>
    <message>
        <source>zeptofarad</source>
        <translation>젭토패럿</translation>
    </message>
    <message>
        <source>yoctofarad</source>
        <translation>욕토패럿</translation>
    </message>
    <message>
        <source>kilopicofarad</source>
        <translation>킬로피코패럿</translation>
    </message>
    <message>
        <source>baud</source>
        <translation>보</translation>
    </message>
    <message>
        <source>bit per second</source>
        <translatorcomment>CLDR: 초당 비트</translatorcomment>
        <translation>초당 비트</translation>
    </message>
    <message>
        <source>byte per second</source>
        <translatorcomment>CLDR: 초당 바이트</translatorcomment>
        <translation>초당 바이트</translation>
    </message>
    <message>
        <source>kilobaud</source>
        <translation>킬로보</translation>
    </message>
    <message>
        <source>kilobit per second</source>
        <translatorcomment>CLDR: 초당 킬로비트</translatorcomment>
        <translation>초당 킬로비트</translation>
    </message>
    <message>
        <source>kilobyte per second</source>
        <translatorcomment>CLDR: 초당 킬로바이트</translatorcomment>
        <translation>초당 킬로바이트</translation>
    </message>
    <message>
        <source>megabaud</source>
        <translation>메가보</translation>
    </message>
    <message>
        <source>megabit per second</source>
        <translatorcomment>CLDR: 초당 메가비트</translatorcomment>
        <translation>초당 메가비트</translation>
    </message>
    <message>
        <source>megabyte per second</source>
        <translatorcomment>CLDR: 초당 메가바이트</translatorcomment>
        <translation>초당 메가바이트</translation>
    </message>
    <message>
        <source>kilogram per cubic meter</source>
        <translatorcomment>CLDR: 세제곱미터당 킬로그램</translatorcomment>
        <translation>세제곱미터당 킬로그램</translation>
    </message>
    <message>
        <source>kilogram per liter</source>
        <translatorcomment>CLDR: 리터당 킬로그램</translatorcomment>
        <translation>리터당 킬로그램</translation>
    </message>
    <message>
        <source>gram per liter</source>
        <translatorcomment>CLDR: 리터당 그램</translatorcomment>
        <translation>리터당 그램</translation>
    </message>
    <message>
        <source>microgram per milliliter</source>
        <translatorcomment>CLDR: 밀리리터당 마이크로그램</translatorcomment>
        <translation>밀리리터당 마이크로그램</translation>
    </message>
    <message>
        <source>milligram per milliliter</source>
        <translatorcomment>CLDR: 밀리리터당 밀리그램</translatorcomment>
        <translation>밀리리터당 밀리그램</translation>
    </message>
    <message>
        <source>pound per gallon</source>
        <translatorcomment>CLDR: 갤런당 파운드</translatorcomment>
        <translation>갤런당 파운드</translation>
    </message>
    <message>
        <source>ounce per gallon</source>
        <translatorcomment>CLDR: 갤런당 온스</translatorcomment>
        <translation>갤런당 온스</translation>
    </message>
    <message>
        <source>pound per cubic foot</source>
        <translatorcomment>CLDR: 세제곱피트당 파운드</translatorcomment>
        <translation>세제곱피트당 파운드</translation>
    </message>
    <message>
        <source>pound per cubic inch</source>
        <translatorcomment>CLDR: 세제곱인치당 파운드</translatorcomment>
        <translation>세제곱인치당 파운드</translation>
    </message>
    <message>
        <source>gram per cubic centimeter</source>
        <translatorcomment>CLDR: 세제곱센티미터당 그램</translatorcomment>
        <translation>세제곱센티미터당 그램</translation>
    </message>
    <message>
        <source>newton square second per quartic millimeter</source>
        <translation>뉴턴 제곱초 매 네제곱밀리미터</translation>
    </message>
    <message>
        <source>newton per cubic meter</source>
        <translatorcomment>CLDR: 세제곱미터당 뉴턴</translatorcomment>
        <translation>세제곱미터당 뉴턴</translation>
    </message>
    <message>
        <source>kilonewton per cubic meter</source>
        <translatorcomment>CLDR: 세제곱미터당 킬로뉴턴</translatorcomment>
        <translation>세제곱미터당 킬로뉴턴</translation>
    </message>
    <message>
        <source>pound force per cubic foot</source>
        <translation>파운드힘 매 세제곱피트</translation>
    </message>
    <message>
        <source>kip per cubic inch</source>
        <translation>킵 매 세제곱인치</translation>
    </message>
    <message>
        <source>kip per cubic foot</source>
        <translation>킵 매 세제곱피트</translation>
    </message>
    <message>
        <source>joule</source>
        <translatorcomment>CLDR: 줄</translatorcomment>
        <translation>줄</translation>
    </message>
    <message>
        <source>calorie</source>
        <translatorcomment>CLDR: 칼로리</translatorcomment>
        <translation>칼로리</translation>
    </message>
    <message>
        <source>kilocalorie</source>
        <translatorcomment>CLDR: 킬로칼로리</translatorcomment>
        <translation>킬로칼로리</translation>
    </message>
    <message>
        <source>British thermal unit (thermochemical)</source>
        <translation>영국 열량 단위 (열화학)</translation>
    </message>
    <message>
        <source>British thermal unit (ISO)</source>
        <translation>영국 열량 단위 (ISO)</translation>
    </message>
    <message>
        <source>British thermal unit (63 degree F)</source>
        <translation>영국 열량 단위 (63 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (60 degree F)</source>
        <translation>영국 열량 단위 (60 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (59 degree F)</source>
        <translation>영국 열량 단위 (59 °F)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table)</source>
        <translation>영국 열량 단위 (국제 증기표)</translation>
    </message>
    <message>
        <source>British thermal unit (mean)</source>
        <translation>영국 열량 단위 (평균)</translation>
    </message>
    <message>
        <source>British thermal unit (39 degree F)</source>
        <translation>영국 열량 단위 (39 °F)</translation>
    </message>
    <message>
        <source>kiloelectronvolt</source>
        <translatorcomment>CLDR: 킬로전자볼트</translatorcomment>
        <translation>킬로전자볼트</translation>
    </message>
    <message>
        <source>megaelectronvolt</source>
        <translatorcomment>CLDR: 메가전자볼트</translatorcomment>
        <translation>메가전자볼트</translation>
    </message>
    <message>
        <source>electronvolt</source>
        <translatorcomment>CLDR: 전자볼트</translatorcomment>
        <translation>전자볼트</translation>
    </message>
    <message>
        <source>erg</source>
        <translation>에르그</translation>
    </message>
    <message>
        <source>kilowatt hour</source>
        <translatorcomment>CLDR: 킬로와트시</translatorcomment>
        <translation>킬로와트시</translation>
    </message>
    <message>
        <source>kilowatt minute</source>
        <translation>킬로와트분</translation>
    </message>
    <message>
        <source>kilowatt second</source>
        <translation>킬로와트초</translation>
    </message>
    <message>
        <source>therm (U.S.)</source>
        <translation>섬 (미국)</translation>
    </message>
    <message>
        <source>newton meter</source>
        <translatorcomment>CLDR: 뉴턴미터</translatorcomment>
        <translation>뉴턴미터</translation>
    </message>
    <message>
        <source>decanewton meter</source>
        <translatorcomment>CLDR: 데카뉴턴미터</translatorcomment>
        <translation>데카뉴턴미터</translation>
    </message>
    <message>
        <source>kilonewton meter</source>
        <translatorcomment>CLDR: 킬로뉴턴미터</translatorcomment>
        <translation>킬로뉴턴미터</translation>
    </message>
    <message>
        <source>meganewton meter</source>
        <translatorcomment>CLDR: 메가뉴턴미터</translatorcomment>
        <translation>메가뉴턴미터</translation>
    </message>
    <message>
        <source>kilogram force meter</source>
        <translation>킬로그램힘 미터</translation>
    </message>
    <message>
        <source>kilogram force foot</source>
        <translation>킬로그램힘 피트</translation>
    </message>
    <message>
        <source>ton force foot</source>
        <translation>톤힘 피트</translation>
    </message>
    <message>
        <source>ton force meter</source>
        <translation>톤힘 미터</translation>
    </message>
    <message>
        <source>foot kilopound</source>
        <translation>피트 킬로파운드</translation>
    </message>
    <message>
        <source>foot pound force</source>
        <translation>피트 파운드힘</translation>
    </message>
    <message>
        <source>calorie (20 degree C)</source>
        <translation>칼로리 (20 °C)</translation>
    </message>
    <message>
        <source>calorie (thermochemical)</source>
        <translation>칼로리 (열화학)</translation>
    </message>
    <message>
        <source>calorie (15 degree C)</source>
        <translation>칼로리 (15 °C)</translation>
    </message>
    <message>
        <source>calorie (mean)</source>
        <translation>칼로리 (평균)</translation>
    </message>
    <message>
        <source>calorie (3.98 degree C)</source>
        <translation>칼로리 (3.98 °C)</translation>
    </message>
    <message>
        <source>Therm (EC)</source>
        <translation>섬 (EC)</translation>
    </message>
    <message>
        <source>cubic meter per second</source>
        <translatorcomment>CLDR: 초당 세제곱미터</translatorcomment>
        <translation>초당 세제곱미터</translation>
    </message>
    <message>
        <source>liter per second</source>
        <translatorcomment>CLDR: 초당 리터</translatorcomment>
        <translation>초당 리터</translation>
    </message>
    <message>
        <source>liter per minute</source>
        <translatorcomment>CLDR: 분당 리터</translatorcomment>
        <translation>분당 리터</translation>
    </message>
    <message>
        <source>liter per hour</source>
        <translatorcomment>CLDR: 시간당 리터</translatorcomment>
        <translation>시간당 리터</translation>
    </message>
    <message>
        <source>gallon per second</source>
        <translatorcomment>CLDR: 초당 갤런</translatorcomment>
        <translation>초당 갤런</translation>
    </message>
    <message>
        <source>gallon per minute</source>
        <translatorcomment>CLDR: 분당 갤런</translatorcomment>
        <translation>분당 갤런</translation>
    </message>
    <message>
        <source>gallon per hour</source>
        <translatorcomment>CLDR: 시간당 갤런</translatorcomment>
        <translation>시간당 갤런</translation>
    </message>
    <message>
        <source>gallon per day</source>
        <translatorcomment>CLDR: 일당 갤런</translatorcomment>
        <translation>일당 갤런</translation>
    </message>
    <message>
        <source>milliliter per minute</source>
        <translatorcomment>CLDR: 분당 밀리리터</translatorcomment>
        <translation>분당 밀리리터</translation>
    </message>
    <message>
        <source>cubic centimeter per minute</source>
        <translatorcomment>CLDR: 분당 세제곱센티미터</translatorcomment>
        <translation>분당 세제곱센티미터</translation>
    </message>
    <message>
        <source>cubic foot per hour</source>
        <translatorcomment>CLDR: 시간당 세제곱피트</translatorcomment>
        <translation>시간당 세제곱피트</translation>
    </message>
    <message>
        <source>cubic foot per minute</source>
        <translatorcomment>CLDR: 분당 세제곱피트</translatorcomment>
        <translation>분당 세제곱피트</translation>
    </message>
    <message>
        <source>cubic foot per second</source>
        <translatorcomment>CLDR: 초당 세제곱피트</translatorcomment>
        <translation>초당 세제곱피트</translation>
    </message>
    <message>
        <source>cubic inch per minute</source>
        <translatorcomment>CLDR: 분당 세제곱인치</translatorcomment>
        <translation>분당 세제곱인치</translation>
    </message>
    <message>
        <source>cubic meter per hour</source>
        <translatorcomment>CLDR: 시간당 세제곱미터</translatorcomment>
        <translation>시간당 세제곱미터</translation>
    </message>
    <message>
        <source>cubic meter per minute</source>
        <translatorcomment>CLDR: 분당 세제곱미터</translatorcomment>
        <translation>분당 세제곱미터</translation>
    </message>
    <message>
        <source>cubic centimeter per second</source>
        <translatorcomment>CLDR: 초당 세제곱센티미터</translatorcomment>
        <translation>초당 세제곱센티미터</translation>
    </message>
    <message>
        <source>cubic centimeter per hour</source>
        <translatorcomment>CLDR: 시간당 세제곱센티미터</translatorcomment>
        <translation>시간당 세제곱센티미터</translation>
    </message>
    <message>
        <source>US gallon per hour</source>
        <translation>시간당 미국 갤런</translation>
    </message>
    <message>
        <source>US gallon per second</source>
        <translation>초당 미국 갤런</translation>
    </message>
    <message>
        <source>Imp gallon per day</source>
        <translation>일당 영국 갤런</translation>
    </message>
    <message>
        <source>Imp gallon per hour</source>
        <translation>시간당 영국 갤런</translation>
    </message>
    <message>
        <source>Imp gallon per minute</source>
        <translation>분당 영국 갤런</translation>
    </message>
    <message>
        <source>Imp gallon per second</source>
        <translation>초당 영국 갤런</translation>
    </message>
    <message>
        <source>Imp million gallon per day</source>
        <translation>일당 백만 영국 갤런</translation>
    </message>
    <message>
        <source>liter per day</source>
        <translatorcomment>CLDR: 일당 리터</translatorcomment>
        <translation>일당 리터</translation>
    </message>
    <message>
        <source>million liter per day</source>
        <translation>일당 백만 리터</translation>
    </message>
    <message>
        <source>US gallon per day</source>
        <translation>일당 미국 갤런</translation>
    </message>
    <message>
        <source>US million gallon per day</source>
        <translation>일당 백만 미국 갤런</translation>
    </message>
    <message>
        <source>cubic foot per day</source>
        <translatorcomment>CLDR: 일당 세제곱피트</translatorcomment>
        <translation>일당 세제곱피트</translation>
    </message>
    <message>
        <source>cubic meter per day</source>
        <translatorcomment>CLDR: 일당 세제곱미터</translatorcomment>
        <translation>일당 세제곱미터</translation>
    </message>
    <message>
        <source>cubic yard per minute</source>
        <translatorcomment>CLDR: 분당 세제곱야드</translatorcomment>
        <translation>분당 세제곱야드</translation>
    </message>
    <message>
        <source>acre foot per day</source>
        <translatorcomment>CLDR: 일당 에이커 피트</translatorcomment>
        <translation>일당 에이커 피트</translation>
    </message>
    <message>
        <source>acre foot per hour</source>
        <translatorcomment>CLDR: 시간당 에이커 피트</translatorcomment>
        <translation>시간당 에이커 피트</translation>
    </message>
    <message>
        <source>acre foot per minute</source>
        <translatorcomment>CLDR: 분당 에이커 피트</translatorcomment>
        <translation>분당 에이커 피트</translation>
    </message>
    <message>
        <source>acre inch per hour</source>
        <translation>시간당 에이커 인치</translation>
    </message>
    <message>
        <source>acre inch per minute</source>
        <translation>분당 에이커 인치</translation>
    </message>
    <message>
        <source>cubic survey foot per second</source>
        <translation>초당 세제곱측량 피트</translation>
    </message>
    <message>
        <source>kilogram per second</source>
        <translatorcomment>CLDR: 초당 킬로그램</translatorcomment>
        <translation>초당 킬로그램</translation>
    </message>
    <message>
        <source>kilogram per minute</source>
        <translatorcomment>CLDR: 분당 킬로그램</translatorcomment>
        <translation>분당 킬로그램</translation>
    </message>
    <message>
        <source>kilogram per hour</source>
        <translatorcomment>CLDR: 시간당 킬로그램</translatorcomment>
        <translation>시간당 킬로그램</translation>
    </message>
    <message>
        <source>gram per second</source>
        <translatorcomment>CLDR: 초당 그램</translatorcomment>
        <translation>초당 그램</translation>
    </message>
    <message>
        <source>gram per minute</source>
        <translatorcomment>CLDR: 분당 그램</translatorcomment>
        <translation>분당 그램</translation>
    </message>
    <message>
        <source>gram per hour</source>
        <translatorcomment>CLDR: 시간당 그램</translatorcomment>
        <translation>시간당 그램</translation>
    </message>
    <message>
        <source>pound per second</source>
        <translatorcomment>CLDR: 초당 파운드</translatorcomment>
        <translation>초당 파운드</translation>
    </message>
    <message>
        <source>pound per minute</source>
        <translatorcomment>CLDR: 분당 파운드</translatorcomment>
        <translation>분당 파운드</translation>
    </message>
    <message>
        <source>pound per hour</source>
        <translatorcomment>CLDR: 시간당 파운드</translatorcomment>
        <translation>시간당 파운드</translation>
    </message>
    <message>
        <source>pint per stroke</source>
        <translation>스트로크당 파인트</translation>
    </message>
    <message>
        <source>quart per stroke</source>
        <translation>스트로크당 쿼트</translation>
    </message>
    <message>
        <source>newton</source>
        <translatorcomment>CLDR: 뉴턴</translatorcomment>
        <translation>뉴턴</translation>
    </message>
    <message>
        <source>yottanewton</source>
        <translatorcomment>CLDR: 요타뉴턴</translatorcomment>
        <translation>요타뉴턴</translation>
    </message>
    <message>
        <source>zettanewton</source>
        <translatorcomment>CLDR: 제타뉴턴</translatorcomment>
        <translation>제타뉴턴</translation>
    </message>
    <message>
        <source>exanewton</source>
        <translatorcomment>CLDR: 엑사뉴턴</translatorcomment>
        <translation>엑사뉴턴</translation>
    </message>
    <message>
        <source>petanewton</source>
        <translatorcomment>CLDR: 페타뉴턴</translatorcomment>
        <translation>페타뉴턴</translation>
    </message>
    <message>
        <source>teranewton</source>
        <translatorcomment>CLDR: 테라뉴턴</translatorcomment>
        <translation>테라뉴턴</translation>
    </message>
    <message>
        <source>giganewton</source>
        <translatorcomment>CLDR: 기가뉴턴</translatorcomment>
        <translation>기가뉴턴</translation>
    </message>
    <message>
        <source>meganewton</source>
        <translatorcomment>CLDR: 메가뉴턴</translatorcomment>
        <translation>메가뉴턴</translation>
    </message>
    <message>
        <source>kilonewton</source>
        <translatorcomment>CLDR: 킬로뉴턴</translatorcomment>
        <translation>킬로뉴턴</translation>
    </message>
    <message>
        <source>hectonewton</source>
        <translatorcomment>CLDR: 헥토뉴턴</translatorcomment>
        <translation>헥토뉴턴</translation>
    </message>
    <message>
        <source>decanewton</source>
        <translatorcomment>CLDR: 데카뉴턴</translatorcomment>
        <translation>데카뉴턴</translation>
    </message>
    <message>
        <source>decinewton</source>
        <translatorcomment>CLDR: 데시뉴턴</translatorcomment>
        <translation>데시뉴턴</translation>
    </message>
    <message>
        <source>centinewton</source>
        <translatorcomment>CLDR: 센티뉴턴</translatorcomment>
        <translation>센티뉴턴</translation>
    </message>
    <message>
        <source>millinewton</source>
        <translatorcomment>CLDR: 밀리뉴턴</translatorcomment>
        <translation>밀리뉴턴</translation>
    </message>
    <message>
        <source>micronewton</source>
        <translatorcomment>CLDR: 마이크로뉴턴</translatorcomment>
        <translation>마이크로뉴턴</translation>
    </message>
    <message>
        <source>nanonewton</source>
        <translatorcomment>CLDR: 나노뉴턴</translatorcomment>
        <translation>나노뉴턴</translation>
    </message>
    <message>
        <source>piconewton</source>
        <translatorcomment>CLDR: 피코뉴턴</translatorcomment>
        <translation>피코뉴턴</translation>
    </message>
    <message>
        <source>femtonewton</source>
        <translatorcomment>CLDR: 펨토뉴턴</translatorcomment>
        <translation>펨토뉴턴</translation>
    </message>
    <message>
        <source>attonewton</source>
        <translatorcomment>CLDR: 아토뉴턴</translatorcomment>
        <translation>아토뉴턴</translation>
    </message>
    <message>
        <source>zeptonewton</source>
        <translatorcomment>CLDR: 젭토뉴턴</translatorcomment>
        <translation>젭토뉴턴</translation>
    </message>
    <message>
        <source>yoctonewton</source>
        <translatorcomment>CLDR: 욕토뉴턴</translatorcomment>
        <translation>욕토뉴턴</translation>
    </message>
    <message>
        <source>kilopound</source>
        <translation>킬로파운드</translation>
    </message>
    <message>
        <source>kilogram-force</source>
        <translation>킬로그램힘</translation>
    </message>
    <message>
        <source>pound force</source>
        <translatorcomment>CLDR: 파운드포스</translatorcomment>
        <translation>파운드포스</translation>
    </message>
    <message>
        <source>kip</source>
        <translation>킵</translation>
    </message>
    <message>
        <source>ton force</source>
        <translation>톤힘</translation>
    </message>
    <message>
        <source>dyne</source>
        <translation>다인</translation>
    </message>
    <message>
        <source>lbforce</source>
        <translation>lbf (파운드힘)</translation>
    </message>
    <message>
        <source>ounce force</source>
        <translation>온스힘</translation>
    </message>
    <message>
        <source>newton per meter</source>
        <translatorcomment>CLDR: 미터당 뉴턴</translatorcomment>
        <translation>미터당 뉴턴</translation>
    </message>
    <message>
        <source>kilopound per foot</source>
        <translation>킬로파운드 매 피트</translation>
    </message>
    <message>
        <source>kilogram force per meter</source>
        <translation>킬로그램힘 매 미터</translation>
    </message>
    <message>
        <source>ton force per meter</source>
        <translation>톤힘 매 미터</translation>
    </message>
    <message>
        <source>pound-force per foot</source>
        <translation>파운드힘 매 피트</translation>
    </message>
    <message>
        <source>decanewton per meter</source>
        <translatorcomment>CLDR: 미터당 데카뉴턴</translatorcomment>
        <translation>미터당 데카뉴턴</translation>
    </message>
    <message>
        <source>kilonewton per meter</source>
        <translatorcomment>CLDR: 미터당 킬로뉴턴</translatorcomment>
        <translation>미터당 킬로뉴턴</translation>
    </message>
    <message>
        <source>meganewton per meter</source>
        <translatorcomment>CLDR: 미터당 메가뉴턴</translatorcomment>
        <translation>미터당 메가뉴턴</translation>
    </message>
    <message>
        <source>kip per foot</source>
        <translation>킵 매 피트</translation>
    </message>
    <message>
        <source>kip per inch</source>
        <translation>킵 매 인치</translation>
    </message>
    <message>
        <source>hertz</source>
        <translatorcomment>CLDR: 헤르츠</translatorcomment>
        <translation>헤르츠</translation>
    </message>
    <message>
        <source>kilohertz</source>
        <translatorcomment>CLDR: 킬로헤르츠</translatorcomment>
        <translation>킬로헤르츠</translation>
    </message>
    <message>
        <source>megahertz</source>
        <translatorcomment>CLDR: 메가헤르츠</translatorcomment>
        <translation>메가헤르츠</translation>
    </message>
    <message>
        <source>gigahertz</source>
        <translatorcomment>CLDR: 기가헤르츠</translatorcomment>
        <translation>기가헤르츠</translation>
    </message>
    <message>
        <source>terahertz</source>
        <translatorcomment>CLDR: 테라헤르츠</translatorcomment>
        <translation>테라헤르츠</translation>
    </message>
    <message>
        <source>cycle per second</source>
        <translation>초당 사이클</translation>
    </message>
    <message>
        <source>revolution per minute</source>
        <translatorcomment>CLDR: 분당 회전</translatorcomment>
        <translation>분당 회전</translation>
    </message>
    <message>
        <source>flash per second</source>
        <translation>초당 섬광</translation>
    </message>
    <message>
        <source>flash per minute</source>
        <translation>분당 섬광</translation>
    </message>
    <message>
        <source>henry</source>
        <translation>헨리</translation>
    </message>
    <message>
        <source>nanohenry</source>
        <translation>나노헨리</translation>
    </message>
    <message>
        <source>microhenry</source>
        <translation>마이크로헨리</translation>
    </message>
    <message>
        <source>millihenry</source>
        <translation>밀리헨리</translation>
    </message>
    <message>
        <source>gauss</source>
        <translation>가우스</translation>
    </message>
    <message>
        <source>milligauss</source>
        <translation>밀리가우스</translation>
    </message>
    <message>
        <source>tesla</source>
        <translation>테슬라</translation>
    </message>
    <message>
        <source>gamma</source>
        <translation>감마</translation>
    </message>
    <message>
        <source>weber</source>
        <translation>웨버</translation>
    </message>
    <message>
        <source>maxwell</source>
        <translation>맥스웰</translation>
    </message>
    <message>
        <source>watt</source>
        <translatorcomment>CLDR: 와트</translatorcomment>
        <translation>와트</translation>
    </message>
    <message>
        <source>horsepower (metric)</source>
        <translation>미터 마력</translation>
    </message>
    <message>
        <source>horsepower (European electrical)</source>
        <translation>마력 (유럽 전기)</translation>
    </message>
    <message>
        <source>horsepower (Imperial mechanical)</source>
        <translation>영국 마력 (기계)</translation>
    </message>
    <message>
        <source>horsepower (Imperial electrical)</source>
        <translation>영국 마력 (전기)</translation>
    </message>
    <message>
        <source>kilocalorie per hour</source>
        <translatorcomment>CLDR: 시간당 킬로칼로리</translatorcomment>
        <translation>시간당 킬로칼로리</translation>
    </message>
    <message>
        <source>kilowatt</source>
        <translatorcomment>CLDR: 킬로와트</translatorcomment>
        <translation>킬로와트</translation>
    </message>
    <message>
        <source>megawatt</source>
        <translatorcomment>CLDR: 메가와트</translatorcomment>
        <translation>메가와트</translation>
    </message>
    <message>
        <source>microwatt</source>
        <translatorcomment>CLDR: 마이크로와트</translatorcomment>
        <translation>마이크로와트</translation>
    </message>
    <message>
        <source>volt ampere</source>
        <translation>볼트암페어</translation>
    </message>
    <message>
        <source>millivolt ampere</source>
        <translation>밀리볼트암페어</translation>
    </message>
    <message>
        <source>kilovolt ampere</source>
        <translation>킬로볼트암페어</translation>
    </message>
    <message>
        <source>megavolt ampere</source>
        <translation>메가볼트암페어</translation>
    </message>
    <message>
        <source>milliwatt</source>
        <translatorcomment>CLDR: 밀리와트</translatorcomment>
        <translation>밀리와트</translation>
    </message>
    <message>
        <source>kilogram force meter per second</source>
        <translation>초당 킬로그램힘 미터</translation>
    </message>
    <message>
        <source>foot pound-force per second</source>
        <translation>초당 피트 파운드힘</translation>
    </message>
    <message>
        <source>calorie per second</source>
        <translatorcomment>CLDR: 초당 칼로리</translatorcomment>
        <translation>초당 칼로리</translation>
    </message>
    <message>
        <source>kilocalorie per second</source>
        <translatorcomment>CLDR: 초당 킬로칼로리</translatorcomment>
        <translation>초당 킬로칼로리</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per second</source>
        <translation>초당 영국 열량 단위 (국제 증기표)</translation>
    </message>
    <message>
        <source>British thermal unit (International Table) per hour</source>
        <translation>시간당 영국 열량 단위 (국제 증기표)</translation>
    </message>
    <message>
        <source>million British thermal unit (International Table) per hour</source>
        <translation>시간당 백만 영국 열량 단위 (국제 증기표)</translation>
    </message>
    <message>
        <source>thousand British thermal unit (International Table) per hour</source>
        <translation>시간당 천 영국 열량 단위 (국제 증기표)</translation>
    </message>
    <message>
        <source>ton of refrigeration</source>
        <translation>냉동톤</translation>
    </message>
    <message>
        <source>watt per cubic meter</source>
        <translatorcomment>CLDR: 세제곱미터당 와트</translatorcomment>
        <translation>세제곱미터당 와트</translation>
    </message>
    <message>
        <source>watt per cubic foot</source>
        <translatorcomment>CLDR: 세제곱피트당 와트</translatorcomment>
        <translation>세제곱피트당 와트</translation>
    </message>
    <message>
        <source>British thermal unit per hour cubic foot</source>
        <translation>영국 열량 단위 매 시간 세제곱피트</translation>
    </message>
    <message>
        <source>watt per kilogram</source>
        <translatorcomment>CLDR: 킬로그램당 와트</translatorcomment>
        <translation>킬로그램당 와트</translation>
    </message>
    <message>
        <source>watt per square meter</source>
        <translatorcomment>CLDR: 제곱미터당 와트</translatorcomment>
        <translation>제곱미터당 와트</translation>
    </message>
    <message>
        <source>kilowatt per square meter</source>
        <translatorcomment>CLDR: 제곱미터당 킬로와트</translatorcomment>
        <translation>제곱미터당 킬로와트</translation>
    </message>
    <message>
        <source>kilowatt per square foot</source>
        <translatorcomment>CLDR: 제곱피트당 킬로와트</translatorcomment>
        <translation>제곱피트당 킬로와트</translation>
    </message>
    <message>
        <source>watt per square foot</source>
        <translatorcomment>CLDR: 제곱피트당 와트</translatorcomment>
        <translation>제곱피트당 와트</translation>
    </message>
    <message>
        <source>British thermal unit per hour square foot</source>
        <translation>영국 열량 단위 매 시간 제곱피트</translation>
    </message>
    <message>
        <source>bar</source>
        <translatorcomment>CLDR: 바</translatorcomment>
        <translation>바</translation>
    </message>
    <message>
        <source>bar absolute</source>
        <translation>바 (절대압)</translation>
    </message>
    <message>
        <source>bar gauge</source>
        <translation>바 (게이지압)</translation>
    </message>
    <message>
        <source>inch of mercury</source>
        <translatorcomment>CLDR: 수은주인치</translatorcomment>
        <translation>수은주인치</translation>
    </message>
    <message>
        <source>inch of water</source>
        <translation>인치 수주</translation>
    </message>
    <message>
        <source>kilobar</source>
        <translatorcomment>CLDR: 킬로바</translatorcomment>
        <translation>킬로바</translation>
    </message>
    <message>
        <source>kilogram per square centimeter</source>
        <translatorcomment>CLDR: 제곱센티미터당 킬로그램</translatorcomment>
        <translation>제곱센티미터당 킬로그램</translation>
    </message>
    <message>
        <source>kilopascal</source>
        <translatorcomment>CLDR: 킬로파스칼</translatorcomment>
        <translation>킬로파스칼</translation>
    </message>
    <message>
        <source>kilopound per square inch</source>
        <translatorcomment>CLDR: 제곱인치당 킬로파운드</translatorcomment>
        <translation>제곱인치당 킬로파운드</translation>
    </message>
    <message>
        <source>mega pascal</source>
        <translatorcomment>CLDR: 메가파스칼</translatorcomment>
        <translation>메가파스칼</translation>
    </message>
    <message>
        <source>millibar</source>
        <translatorcomment>CLDR: 밀리바</translatorcomment>
        <translation>밀리바</translation>
    </message>
    <message>
        <source>millimeter of mercury</source>
        <translatorcomment>CLDR: 수은주밀리미터</translatorcomment>
        <translation>수은주밀리미터</translation>
    </message>
    <message>
        <source>milli pascal</source>
        <translatorcomment>CLDR: 밀리파스칼</translatorcomment>
        <translation>밀리파스칼</translation>
    </message>
    <message>
        <source>pascal</source>
        <translatorcomment>CLDR: 파스칼</translatorcomment>
        <translation>파스칼</translation>
    </message>
    <message>
        <source>pound per square inch (atmosphere)</source>
        <translation>제곱인치당 파운드 (절대압)</translation>
    </message>
    <message>
        <source>pound per square inch (gauge)</source>
        <translation>제곱인치당 파운드 (게이지압)</translation>
    </message>
    <message>
        <source>pound per square foot</source>
        <translatorcomment>CLDR: 제곱피트당 파운드</translatorcomment>
        <translation>제곱피트당 파운드</translation>
    </message>
    <message>
        <source>pound per square inch</source>
        <translatorcomment>CLDR: 제곱인치당 파운드</translatorcomment>
        <translation>제곱인치당 파운드</translation>
    </message>
    <message>
        <source>atmosphere (standard)</source>
        <translation>표준 기압</translation>
    </message>
    <message>
        <source>atmosphere (metric)</source>
        <translation>공학 기압</translation>
    </message>
    <message>
        <source>torr</source>
        <translation>토르</translation>
    </message>
    <message>
        <source>newton per square millimeter</source>
        <translatorcomment>CLDR: 제곱밀리미터당 뉴턴</translatorcomment>
        <translation>제곱밀리미터당 뉴턴</translation>
    </message>
    <message>
        <source>newton per square meter</source>
        <translatorcomment>CLDR: 제곱미터당 뉴턴</translatorcomment>
        <translation>제곱미터당 뉴턴</translation>
    </message>
    <message>
        <source>decanewton per square millimeter</source>
        <translatorcomment>CLDR: 제곱밀리미터당 데카뉴턴</translatorcomment>
        <translation>제곱밀리미터당 데카뉴턴</translation>
    </message>
    <message>
        <source>decanewton per square meter</source>
        <translatorcomment>CLDR: 제곱미터당 데카뉴턴</translatorcomment>
        <translation>제곱미터당 데카뉴턴</translation>
    </message>
    <message>
        <source>kilonewton per square meter</source>
        <translatorcomment>CLDR: 제곱미터당 킬로뉴턴</translatorcomment>
        <translation>제곱미터당 킬로뉴턴</translation>
    </message>
    <message>
        <source>meganewton per square meter</source>
        <translatorcomment>CLDR: 제곱미터당 메가뉴턴</translatorcomment>
        <translation>제곱미터당 메가뉴턴</translation>
    </message>
    <message>
        <source>kilopound per square foot</source>
        <translatorcomment>CLDR: 제곱피트당 킬로파운드</translatorcomment>
        <translation>제곱피트당 킬로파운드</translation>
    </message>
    <message>
        <source>kilogram force per square millimeter</source>
        <translation>킬로그램힘 매 제곱밀리미터</translation>
    </message>
    <message>
        <source>kilogram force per square centimeter</source>
        <translation>킬로그램힘 매 제곱센티미터</translation>
    </message>
    <message>
        <source>kilogram force per square meter</source>
        <translation>킬로그램힘 매 제곱미터</translation>
    </message>
    <message>
        <source>ton force per square centimeter</source>
        <translation>톤힘 매 제곱센티미터</translation>
    </message>
    <message>
        <source>ton force per square meter</source>
        <translation>톤힘 매 제곱미터</translation>
    </message>
    <message>
        <source>ton force per square foot</source>
        <translation>톤힘 매 제곱피트</translation>
    </message>
    <message>
        <source>pound force per square inch</source>
        <translation>제곱인치당 파운드힘</translation>
    </message>
    <message>
        <source>foot of water</source>
        <translation>피트 수주</translation>
    </message>
    <message>
        <source>kip per square inch</source>
        <translation>킵 매 제곱인치</translation>
    </message>
    <message>
        <source>kip per square foot</source>
        <translation>킵 매 제곱피트</translation>
    </message>
    <message>
        <source>pound force per square foot</source>
        <translation>파운드힘 매 제곱피트</translation>
    </message>
    <message>
        <source>gigapascal</source>
        <translatorcomment>CLDR: 기가파스칼</translatorcomment>
        <translation>기가파스칼</translation>
    </message>
    <message>
        <source>dyne per square centimeter</source>
        <translation>다인 매 제곱센티미터</translation>
    </message>
    <message>
        <source>newton per square micrometer</source>
        <translatorcomment>CLDR: 제곱마이크로미터당 뉴턴</translatorcomment>
        <translation>제곱마이크로미터당 뉴턴</translation>
    </message>
    <message>
        <source>meter per newton</source>
        <translatorcomment>CLDR: 뉴턴당 미터</translatorcomment>
        <translation>뉴턴당 미터</translation>
    </message>
    <message>
        <source>meter per kilonewton</source>
        <translatorcomment>CLDR: 킬로뉴턴당 미터</translatorcomment>
        <translation>킬로뉴턴당 미터</translation>
    </message>
    <message>
        <source>foot per kip</source>
        <translation>피트 매 킵</translation>
    </message>
    <message>
        <source>square meter per newton</source>
        <translatorcomment>CLDR: 뉴턴당 제곱미터</translatorcomment>
        <translation>뉴턴당 제곱미터</translation>
    </message>
    <message>
        <source>square meter per kilonewton</source>
        <translatorcomment>CLDR: 킬로뉴턴당 제곱미터</translatorcomment>
        <translation>킬로뉴턴당 제곱미터</translation>
    </message>
    <message>
        <source>square foot per kip</source>
        <translation>제곱피트 매 킵</translation>
    </message>
    <message>
        <source>cubic meter per newton</source>
        <translatorcomment>CLDR: 뉴턴당 세제곱미터</translatorcomment>
        <translation>뉴턴당 세제곱미터</translation>
    </message>
    <message>
        <source>cubic meter per kilonewton</source>
        <translatorcomment>CLDR: 킬로뉴턴당 세제곱미터</translatorcomment>
        <translation>킬로뉴턴당 세제곱미터</translation>
    </message>
    <message>
        <source>cubic foot per kip</source>
        <translation>세제곱피트 매 킵</translation>
    </message>
    <message>
        <source>newton-meter per meter</source>
        <translatorcomment>CLDR: 미터당 뉴턴미터</translatorcomment>
        <translation>미터당 뉴턴미터</translation>
    </message>
    <message>
        <source>decanewton-meter per meter</source>
        <translatorcomment>CLDR: 미터당 데카뉴턴미터</translatorcomment>
        <translation>미터당 데카뉴턴미터</translation>
    </message>
    <message>
        <source>kilonewton-meter per meter</source>
        <translatorcomment>CLDR: 미터당 킬로뉴턴미터</translatorcomment>
        <translation>미터당 킬로뉴턴미터</translation>
    </message>
    <message>
        <source>meganewton-meter per meter</source>
        <translatorcomment>CLDR: 미터당 메가뉴턴미터</translatorcomment>
        <translation>미터당 메가뉴턴미터</translation>
    </message>
    <message>
        <source>kip-foot per foot</source>
        <translation>킵 피트 매 피트</translation>
    </message>
    <message>
        <source>kilogram force-meter per meter</source>
        <translation>킬로그램힘 미터 매 미터</translation>
    </message>
    <message>
        <source>ton force-meter per meter</source>
        <translation>톤힘 미터 매 미터</translation>
    </message>
    <message>
        <source>pound-force foot per foot</source>
        <translatorcomment>CLDR: 피트당 lbf⋅ft</translatorcomment>
        <translation>피트당 lbf⋅ft</translation>
    </message>
    <message>
        <source>ohm</source>
        <translatorcomment>CLDR: 옴</translatorcomment>
        <translation>옴</translation>
    </message>
    <message>
        <source>kilohm</source>
        <translatorcomment>CLDR: 킬로옴</translatorcomment>
        <translation>킬로옴</translation>
    </message>
    <message>
        <source>gigaohm</source>
        <translatorcomment>CLDR: 기가옴</translatorcomment>
        <translation>기가옴</translation>
    </message>
    <message>
        <source>megohm</source>
        <translatorcomment>CLDR: 메가옴</translatorcomment>
        <translation>메가옴</translation>
    </message>
    <message>
        <source>microohm</source>
        <translatorcomment>CLDR: 마이크로옴</translatorcomment>
        <translation>마이크로옴</translation>
    </message>
    <message>
        <source>milliohm</source>
        <translatorcomment>CLDR: 밀리옴</translatorcomment>
        <translation>밀리옴</translation>
    </message>
    <message>
        <source>siemens</source>
        <translation>지멘스</translation>
    </message>
    <message>
        <source>mho</source>
        <translation>모</translation>
    </message>
    <message>
        <source>meter per second</source>
        <translatorcomment>CLDR: 초속 미터</translatorcomment>
        <translation>초속 미터</translation>
    </message>
    <message>
        <source>millimeter per second</source>
        <translatorcomment>CLDR: 초당 밀리미터</translatorcomment>
        <translation>초당 밀리미터</translation>
    </message>
    <message>
        <source>centimeter per second</source>
        <translatorcomment>CLDR: 초당 센티미터</translatorcomment>
        <translation>초당 센티미터</translation>
    </message>
    <message>
        <source>meter per minute</source>
        <translatorcomment>CLDR: 분당 미터</translatorcomment>
        <translation>분당 미터</translation>
    </message>
    <message>
        <source>inch per second</source>
        <translatorcomment>CLDR: 초당 인치</translatorcomment>
        <translation>초당 인치</translation>
    </message>
    <message>
        <source>foot per second</source>
        <translatorcomment>CLDR: 초당 피트</translatorcomment>
        <translation>초당 피트</translation>
    </message>
    <message>
        <source>inch per minute</source>
        <translatorcomment>CLDR: 분당 인치</translatorcomment>
        <translation>분당 인치</translation>
    </message>
    <message>
        <source>foot per minute</source>
        <translatorcomment>CLDR: 분당 피트</translatorcomment>
        <translation>분당 피트</translation>
    </message>
    <message>
        <source>kilometer per hour</source>
        <translatorcomment>CLDR: 시속 킬로미터</translatorcomment>
        <translation>시속 킬로미터</translation>
    </message>
    <message>
        <source>mile per hour</source>
        <translatorcomment>CLDR: 시속 마일</translatorcomment>
        <translation>시속 마일</translation>
    </message>
    <message>
        <source>centimeter per minute</source>
        <translatorcomment>CLDR: 분당 센티미터</translatorcomment>
        <translation>분당 센티미터</translation>
    </message>
    <message>
        <source>foot per hour</source>
        <translatorcomment>CLDR: 시간당 피트</translatorcomment>
        <translation>시간당 피트</translation>
    </message>
    <message>
        <source>inch per hour</source>
        <translatorcomment>CLDR: 시간당 인치</translatorcomment>
        <translation>시간당 인치</translation>
    </message>
    <message>
        <source>kilometer per minute</source>
        <translatorcomment>CLDR: 분당 킬로미터</translatorcomment>
        <translation>분당 킬로미터</translation>
    </message>
    <message>
        <source>kilometer per second</source>
        <translatorcomment>CLDR: 초당 킬로미터</translatorcomment>
        <translation>초당 킬로미터</translation>
    </message>
    <message>
        <source>knot</source>
        <translatorcomment>CLDR: 노트</translatorcomment>
        <translation>노트</translation>
    </message>
    <message>
        <source>knot (UK)</source>
        <translation>노트 (영국)</translation>
    </message>
    <message>
        <source>meter per hour</source>
        <translatorcomment>CLDR: 시간당 미터</translatorcomment>
        <translation>시간당 미터</translation>
    </message>
    <message>
        <source>mile per minute</source>
        <translatorcomment>CLDR: 분당 마일</translatorcomment>
        <translation>분당 마일</translation>
    </message>
    <message>
        <source>mile per second</source>
        <translatorcomment>CLDR: 초당 마일</translatorcomment>
        <translation>초당 마일</translation>
    </message>
    <message>
        <source>survey mile per hour</source>
        <translation>시간당 측량 마일</translation>
    </message>
    <message>
        <source>survey foot per second</source>
        <translation>초당 측량 피트</translation>
    </message>
    <message>
        <source>byte</source>
        <translatorcomment>CLDR: 바이트</translatorcomment>
        <translation>바이트</translation>
    </message>
    <message>
        <source>bit</source>
        <translatorcomment>CLDR: 비트</translatorcomment>
        <translation>비트</translation>
    </message>
    <message>
        <source>kilobyte</source>
        <translatorcomment>CLDR: 킬로바이트</translatorcomment>
        <translation>킬로바이트</translation>
    </message>
    <message>
        <source>megabyte</source>
        <translatorcomment>CLDR: 메가바이트</translatorcomment>
        <translation>메가바이트</translation>
    </message>
    <message>
        <source>gigabyte</source>
        <translatorcomment>CLDR: 기가바이트</translatorcomment>
        <translation>기가바이트</translation>
    </message>
    <message>
        <source>terabyte</source>
        <translatorcomment>CLDR: 테라바이트</translatorcomment>
        <translation>테라바이트</translation>
    </message>
    <message>
        <source>kibibyte</source>
        <translatorcomment>CLDR: 키비바이트</translatorcomment>
        <translation>키비바이트</translation>
    </message>
    <message>
        <source>mebibyte</source>
        <translatorcomment>CLDR: 메비바이트</translatorcomment>
        <translation>메비바이트</translation>
    </message>
    <message>
        <source>gibibyte</source>
        <translatorcomment>CLDR: 기비바이트</translatorcomment>
        <translation>기비바이트</translation>
    </message>
    <message>
        <source>tebibyte</source>
        <translatorcomment>CLDR: 테비바이트</translatorcomment>
        <translation>테비바이트</translation>
    </message>
    <message>
        <source>kilobit</source>
        <translatorcomment>CLDR: 킬로비트</translatorcomment>
        <translation>킬로비트</translation>
    </message>
    <message>
        <source>megabit</source>
        <translatorcomment>CLDR: 메가비트</translatorcomment>
        <translation>메가비트</translation>
    </message>
    <message>
        <source>gigabit</source>
        <translatorcomment>CLDR: 기가비트</translatorcomment>
        <translation>기가비트</translation>
    </message>
    <message>
        <source>petabyte</source>
        <translatorcomment>CLDR: 페타바이트</translatorcomment>
        <translation>페타바이트</translation>
    </message>
    <message>
        <source>pebibyte</source>
        <translatorcomment>CLDR: 페비바이트</translatorcomment>
        <translation>페비바이트</translation>
    </message>
    <message>
        <source>exabyte</source>
        <translatorcomment>CLDR: 엑사바이트</translatorcomment>
        <translation>엑사바이트</translation>
    </message>
    <message>
        <source>exbibyte</source>
        <translatorcomment>CLDR: 엑스비바이트</translatorcomment>
        <translation>엑스비바이트</translation>
    </message>
    <message>
        <source>zettabyte</source>
        <translatorcomment>CLDR: 제타바이트</translatorcomment>
        <translation>제타바이트</translation>
    </message>
    <message>
        <source>zebibyte</source>
        <translatorcomment>CLDR: 제비바이트</translatorcomment>
        <translation>제비바이트</translation>
    </message>
    <message>
        <source>yottabyte</source>
        <translatorcomment>CLDR: 요타바이트</translatorcomment>
        <translation>요타바이트</translation>
    </message>
    <message>
        <source>yobibyte</source>
        <translatorcomment>CLDR: 요비바이트</translatorcomment>
        <translation>요비바이트</translation>
    </message>
    <message>
        <source>kelvin</source>
        <translatorcomment>CLDR: 켈빈</translatorcomment>
        <translation>켈빈</translation>
    </message>
    <message>
        <source>degree Celsius</source>
        <translatorcomment>CLDR: 섭씨 도</translatorcomment>
        <translation>섭씨 도</translation>
    </message>
    <message>
        <source>degree Fahrenheit</source>
        <translatorcomment>CLDR: 화씨 도</translatorcomment>
        <translation>화씨 도</translation>
    </message>
    <message>
        <source>degree Rankine</source>
        <translation>랭킨 온도</translation>
    </message>
    <message>
        <source>celsius per minute</source>
        <translatorcomment>CLDR: 분당 섭씨 도</translatorcomment>
        <translation>분당 섭씨 도</translation>
    </message>
    <message>
        <source>fahrenheit per minute</source>
        <translatorcomment>CLDR: 분당 화씨 도</translatorcomment>
        <translation>분당 화씨 도</translation>
    </message>
    <message>
        <source>second</source>
        <translatorcomment>CLDR: 초</translatorcomment>
        <translation>초</translation>
    </message>
    <message>
        <source>yottasecond</source>
        <translatorcomment>CLDR: 요타초</translatorcomment>
        <translation>요타초</translation>
    </message>
    <message>
        <source>zettasecond</source>
        <translatorcomment>CLDR: 제타초</translatorcomment>
        <translation>제타초</translation>
    </message>
    <message>
        <source>exasecond</source>
        <translatorcomment>CLDR: 엑사초</translatorcomment>
        <translation>엑사초</translation>
    </message>
    <message>
        <source>petasecond</source>
        <translatorcomment>CLDR: 페타초</translatorcomment>
        <translation>페타초</translation>
    </message>
    <message>
        <source>terasecond</source>
        <translatorcomment>CLDR: 테라초</translatorcomment>
        <translation>테라초</translation>
    </message>
    <message>
        <source>gigasecond</source>
        <translatorcomment>CLDR: 기가초</translatorcomment>
        <translation>기가초</translation>
    </message>
    <message>
        <source>megasecond</source>
        <translatorcomment>CLDR: 메가초</translatorcomment>
        <translation>메가초</translation>
    </message>
    <message>
        <source>kilosecond</source>
        <translatorcomment>CLDR: 킬로초</translatorcomment>
        <translation>킬로초</translation>
    </message>
    <message>
        <source>hectosecond</source>
        <translatorcomment>CLDR: 헥토초</translatorcomment>
        <translation>헥토초</translation>
    </message>
    <message>
        <source>decasecond</source>
        <translatorcomment>CLDR: 데카초</translatorcomment>
        <translation>데카초</translation>
    </message>
    <message>
        <source>decisecond</source>
        <translatorcomment>CLDR: 데시초</translatorcomment>
        <translation>데시초</translation>
    </message>
    <message>
        <source>centisecond</source>
        <translatorcomment>CLDR: 센티초</translatorcomment>
        <translation>센티초</translation>
    </message>
    <message>
        <source>millisecond</source>
        <translatorcomment>CLDR: 밀리초</translatorcomment>
        <translation>밀리초</translation>
    </message>
    <message>
        <source>microsecond</source>
        <translatorcomment>CLDR: 마이크로초</translatorcomment>
        <translation>마이크로초</translation>
    </message>
    <message>
        <source>nanosecond</source>
        <translatorcomment>CLDR: 나노초</translatorcomment>
        <translation>나노초</translation>
    </message>
    <message>
        <source>picosecond</source>
        <translatorcomment>CLDR: 피코초</translatorcomment>
        <translation>피코초</translation>
    </message>
    <message>
        <source>femtosecond</source>
        <translatorcomment>CLDR: 펨토초</translatorcomment>
        <translation>펨토초</translation>
    </message>
    <message>
        <source>attosecond</source>
        <translatorcomment>CLDR: 아토초</translatorcomment>
        <translation>아토초</translation>
    </message>
    <message>
        <source>zeptosecond</source>
        <translatorcomment>CLDR: 젭토초</translatorcomment>
        <translation>젭토초</translation>
    </message>
    <message>
        <source>yoctosecond</source>
        <translatorcomment>CLDR: 욕토초</translatorcomment>
        <translation>욕토초</translation>
    </message>
    <message>
        <source>minute</source>
        <translatorcomment>CLDR: 분</translatorcomment>
        <translation>분</translation>
    </message>
    <message>
        <source>hour</source>
        <translatorcomment>CLDR: 시간</translatorcomment>
        <translation>시간</translation>
    </message>
    <message>
        <source>day</source>
        <translatorcomment>CLDR: 일</translatorcomment>
        <translation>일</translation>
    </message>
    <message>
        <source>week</source>
        <translatorcomment>CLDR: 주</translatorcomment>
        <translation>주</translation>
    </message>
    <message>
        <source>fortnight</source>
        <translation>이주</translation>
    </message>
    <message>
        <source>month</source>
        <translatorcomment>CLDR: 개월</translatorcomment>
        <translation>개월</translation>
    </message>
    <message>
        <source>month (hollow)</source>
        <translation>작은달 (29일)</translation>
    </message>
    <message>
        <source>month (full)</source>
        <translation>큰달 (30일)</translation>
    </message>
    <message>
        <source>year</source>
        <translatorcomment>CLDR: 년</translatorcomment>
        <translation>년</translation>
    </message>
    <message>
        <source>year (Gregorian)</source>
        <translation>년 (그레고리력)</translation>
    </message>
    <message>
        <source>year (Julian)</source>
        <translation>년 (율리우스력)</translation>
    </message>
    <message>
        <source>sidereal year</source>
        <translation>항성년</translation>
    </message>
    <message>
        <source>tropical year</source>
        <translation>태양년</translation>
    </message>
    <message>
        <source>annum</source>
        <translation>연 (annum)</translation>
    </message>
    <message>
        <source>decade</source>
        <translation>십년</translation>
    </message>
    <message>
        <source>century</source>
        <translatorcomment>CLDR: 세기</translatorcomment>
        <translation>세기</translation>
    </message>
    <message>
        <source>century (Julian)</source>
        <translation>세기 (율리우스력)</translation>
    </message>
    <message>
        <source>millenium</source>
        <translation>천년</translation>
    </message>
    <message>
        <source>millenium (Gregorian)</source>
        <translation>천년 (그레고리력)</translation>
    </message>
    <message>
        <source>millenium (Julian)</source>
        <translation>천년 (율리우스력)</translation>
    </message>
    <message>
        <source>newton meter (torque)</source>
        <translation>뉴턴 미터 (토크)</translation>
    </message>
    <message>
        <source>newton centimeter (torque)</source>
        <translation>뉴턴 센티미터 (토크)</translation>
    </message>
    <message>
        <source>newton decameter (torque)</source>
        <translation>뉴턴 데카미터 (토크)</translation>
    </message>
    <message>
        <source>foot pound (torque)</source>
        <translation>피트 파운드 (토크)</translation>
    </message>
    <message>
        <source>inch pound (torque)</source>
        <translation>인치 파운드 (토크)</translation>
    </message>
    <message>
        <source>meter kilogram (torque)</source>
        <translation>미터 킬로그램 (토크)</translation>
    </message>
    <message>
        <source>centimeter kilogram (torque)</source>
        <translation>센티미터 킬로그램 (토크)</translation>
    </message>
    <message>
        <source>inch ounce (torque)</source>
        <translation>인치 온스 (토크)</translation>
    </message>
    <message>
        <source>gram centimeter (torque)</source>
        <translation>그램 센티미터 (토크)</translation>
    </message>
    <message>
        <source>decanewton meter (torque)</source>
        <translation>데카뉴턴 미터 (토크)</translation>
    </message>
    <message>
        <source>kilonewton meter (torque)</source>
        <translation>킬로뉴턴 미터 (토크)</translation>
    </message>
    <message>
        <source>meganewton meter (torque)</source>
        <translation>메가뉴턴 미터 (토크)</translation>
    </message>
    <message>
        <source>kip foot (torque)</source>
        <translation>킵 피트 (토크)</translation>
    </message>
    <message>
        <source>kilogram force meter (torque)</source>
        <translation>킬로그램힘 미터 (토크)</translation>
    </message>
    <message>
        <source>ton force meter (torque)</source>
        <translation>톤힘 미터 (토크)</translation>
    </message>
    <message>
        <source>pound force foot (torque)</source>
        <translation>파운드힘 피트 (토크)</translation>
    </message>
    <message>
        <source>poise</source>
        <translation>푸아즈</translation>
    </message>
    <message>
        <source>centipoise</source>
        <translation>센티푸아즈</translation>
    </message>
    <message>
        <source>pascal second</source>
        <translation>파스칼초</translation>
    </message>
    <message>
        <source>pound mass per foot second</source>
        <translation>파운드 매 피트 초</translation>
    </message>
    <message>
        <source>pound mass per foot hour</source>
        <translation>파운드 매 피트 시간</translation>
    </message>
    <message>
        <source>stoke</source>
        <translation>스토크스</translation>
    </message>
    <message>
        <source>centistoke</source>
        <translation>센티스토크스</translation>
    </message>
    <message>
        <source>meter per second squared</source>
        <translatorcomment>CLDR: 제곱 초당 미터</translatorcomment>
        <translation>제곱 초당 미터</translation>
    </message>
    <message>
        <source>foot per second squared</source>
        <translation>피트 매 제곱초</translation>
    </message>
    <message>
        <source>survey foot per second squared</source>
        <translation>측량 피트 매 제곱초</translation>
    </message>
    <message>
        <source>volt</source>
        <translatorcomment>CLDR: 볼트</translatorcomment>
        <translation>볼트</translation>
    </message>
    <message>
        <source>kilovolt</source>
        <translatorcomment>CLDR: 킬로볼트</translatorcomment>
        <translation>킬로볼트</translation>
    </message>
    <message>
        <source>microvolt</source>
        <translatorcomment>CLDR: 마이크로볼트</translatorcomment>
        <translation>마이크로볼트</translation>
    </message>
    <message>
        <source>millivolt</source>
        <translatorcomment>CLDR: 밀리볼트</translatorcomment>
        <translation>밀리볼트</translation>
    </message>
    <message>
        <source>volt (electrical potential)</source>
        <translation>볼트 (전위)</translation>
    </message>
    <message>
        <source>abvolt</source>
        <translation>압볼트</translation>
    </message>
    <message>
        <source>statvolt</source>
        <translation>스탯볼트</translation>
    </message>
    <message>
        <source>candela</source>
        <translatorcomment>CLDR: 칸델라</translatorcomment>
        <translation>칸델라</translation>
    </message>
    <message>
        <source>lumen per steradian</source>
        <translation>루멘 매 스테라디안</translation>
    </message>
    <message>
        <source>candlepower</source>
        <translation>촉광</translation>
    </message>
    <message>
        <source>Lux (Illuminance)</source>
        <translation>럭스 (조도)</translation>
    </message>
    <message>
        <source>footcandle</source>
        <translation>풋캔들</translation>
    </message>
    <message>
        <source>lumen second</source>
        <translation>루멘초</translation>
    </message>
    <message>
        <source>talbots</source>
        <translation>탤벗</translation>
    </message>
    <message>
        <source>luminous power</source>
        <translation>광출력</translation>
    </message>
    <message>
        <source>lumen</source>
        <translatorcomment>CLDR: 루멘</translatorcomment>
        <translation>루멘</translation>
    </message>
    <message>
        <source>candela per square meter</source>
        <translatorcomment>CLDR: 제곱미터당 칸델라</translatorcomment>
        <translation>제곱미터당 칸델라</translation>
    </message>
    <message>
        <source>foot lambert</source>
        <translation>풋램버트</translation>
    </message>
    <message>
        <source>candela per square foot</source>
        <translatorcomment>CLDR: 제곱피트당 칸델라</translatorcomment>
        <translation>제곱피트당 칸델라</translation>
    </message>
    <message>
        <source>lux (emittance)</source>
        <translation>럭스 (광속 발산도)</translation>
    </message>
    <message>
        <source>lumen per watt</source>
        <translatorcomment>CLDR: 와트당 루멘</translatorcomment>
        <translation>와트당 루멘</translation>
    </message>
    <message>
        <source>pascal per meter</source>
        <translatorcomment>CLDR: 미터당 파스칼</translatorcomment>
        <translation>미터당 파스칼</translation>
    </message>
    <message>
        <source>inch of water per 100foot</source>
        <translation>인치 수주 매 100 피트</translation>
    </message>
    <message>
        <source>foot of water per 100foot</source>
        <translation>피트 수주 매 100 피트</translation>
    </message>
    <message>
        <source>inch of mercury per 100foot</source>
        <translation>인치 수은주 매 100 피트</translation>
    </message>
    <message>
        <source>millimeter of mercury per 100foot</source>
        <translation>밀리미터 수은주 매 100 피트</translation>
    </message>
    <message>
        <source>newton meter per degree</source>
        <translatorcomment>CLDR: 도당 뉴턴미터</translatorcomment>
        <translation>도당 뉴턴미터</translation>
    </message>
    <message>
        <source>kip foot per degree</source>
        <translation>킵 피트 매 도</translation>
    </message>
    <message>
        <source>kilonewton meter per degree</source>
        <translatorcomment>CLDR: 도당 킬로뉴턴미터</translatorcomment>
        <translation>도당 킬로뉴턴미터</translation>
    </message>
    <message>
        <source>newton meter per degree per meter</source>
        <translation>뉴턴 미터 매 도 매 미터</translation>
    </message>
    <message>
        <source>kip foot per degree per foot</source>
        <translation>킵 피트 매 도 매 피트</translation>
    </message>
    <message>
        <source>kilonewton meter per degree per meter</source>
        <translation>킬로뉴턴 미터 매 도 매 미터</translation>
    </message>
    <message>
        <source>watt per square meter kelvin</source>
        <translation>와트 매 제곱미터 켈빈</translation>
    </message>
    <message>
        <source>british thermal unit per hour square foot fahrenheit</source>
        <translation>영국 열량 단위 매 시간 제곱피트 화씨도</translation>
    </message>
    <message>
        <source>cubic meter per second square meter</source>
        <translation>세제곱미터 매 초 제곱미터</translation>
    </message>
    <message>
        <source>cubic foot per minute square foot</source>
        <translation>세제곱피트 매 분 제곱피트</translation>
    </message>
    <message>
        <source>liter per second square meter</source>
        <translation>리터 매 초 제곱미터</translation>
    </message>
    <message>
        <source>cubic meter per second cubic meter</source>
        <translation>세제곱미터 매 초 세제곱미터</translation>
    </message>
    <message>
        <source>cubic foot per minute cubic foot</source>
        <translation>세제곱피트 매 분 세제곱피트</translation>
    </message>
    <message>
        <source>liter per second cubic meter</source>
        <translation>리터 매 초 세제곱미터</translation>
    </message>
    <message>
        <source>cubic meter per second watt</source>
        <translation>세제곱미터 매 초 와트</translation>
    </message>
    <message>
        <source>cubic foot per minute ton of refrigeration</source>
        <translation>세제곱피트 매 분 냉동톤</translation>
    </message>
    <message>
        <source>liter per second kilowatt</source>
        <translation>리터 매 초 킬로와트</translation>
    </message>
    <message>
        <source>square meter per watt</source>
        <translatorcomment>CLDR: 와트당 제곱미터</translatorcomment>
        <translation>와트당 제곱미터</translation>
    </message>
    <message>
        <source>square foot per ton of refrigeration</source>
        <translation>제곱피트 매 냉동톤</translation>
    </message>
    <message>
        <source>square meter per kilowatt</source>
        <translatorcomment>CLDR: 킬로와트당 제곱미터</translatorcomment>
        <translation>킬로와트당 제곱미터</translation>
    </message>
    <message>
        <source>square foot per thousand british thermal unit per hour</source>
        <translation>제곱피트 매 시간당 천 영국 열량 단위</translation>
    </message>
    <message>
        <source>square second per meter kilogram</source>
        <translation>제곱초 매 미터 킬로그램</translation>
    </message>
    <message>
        <source>inverse kilonewton</source>
        <translation>역킬로뉴턴</translation>
    </message>
    <message>
        <source>inverse kip</source>
        <translation>역킵</translation>
    </message>
    <message>
        <source>inverse fahrenheit</source>
        <translation>역화씨도</translation>
    </message>
    <message>
        <source>inverse celsius</source>
        <translation>역섭씨도</translation>
    </message>
    <message>
        <source>micrometer per meter celsius</source>
        <translation>마이크로미터 매 미터 섭씨도</translation>
    </message>
    <message>
        <source>microinch per inch fahrenheit</source>
        <translation>마이크로인치 매 인치 화씨도</translation>
    </message>
    <message>
        <source>oersted</source>
        <translation>에르스텟</translation>
    </message>
    <message>
        <source>Ampere per meter</source>
        <translatorcomment>CLDR: 미터당 암페어</translatorcomment>
        <translation>미터당 암페어</translation>
    </message>
    <message>
        <source>watt per meter kelvin</source>
        <translation>와트 매 미터 켈빈</translation>
    </message>
    <message>
        <source>watt per meter celsius</source>
        <translation>와트 매 미터 섭씨도</translation>
    </message>
    <message>
        <source>newton per second celsius</source>
        <translation>뉴턴 매 초 섭씨도</translation>
    </message>
    <message>
        <source>dyne per second celsius</source>
        <translation>다인 매 초 섭씨도</translation>
    </message>
    <message>
        <source>BTU inch per square foot hour fahrenheit</source>
        <translation>BTU 인치 매 제곱피트 시간 화씨도</translation>
    </message>
    <message>
        <source>BTU per inch second fahrenheit</source>
        <translation>BTU 매 인치 초 화씨도</translation>
    </message>
    <message>
        <source>BTU per foot second fahrenheit</source>
        <translation>BTU 매 피트 초 화씨도</translation>
    </message>
    <message>
        <source>BTU per foot hour fahrenheit</source>
        <translation>BTU 매 피트 시간 화씨도</translation>
    </message>
    <message>
        <source>joule per gram celsius</source>
        <translation>줄 매 그램 섭씨도</translation>
    </message>
    <message>
        <source>joule per kilogram celsius</source>
        <translation>줄 매 킬로그램 섭씨도</translation>
    </message>
    <message>
        <source>square millimeter per square second celsius</source>
        <translation>제곱밀리미터 매 제곱초 섭씨도</translation>
    </message>
    <message>
        <source>erg per gram celsius</source>
        <translation>에르그 매 그램 섭씨도</translation>
    </message>
    <message>
        <source>square micrometer per square second celsius</source>
        <translation>제곱마이크로미터 매 제곱초 섭씨도</translation>
    </message>
    <message>
        <source>BTU per pound fahrenheit</source>
        <translation>BTU 매 파운드 화씨도</translation>
    </message>
    <message>
        <source>nanogram per pascal second square meter</source>
        <translation>나노그램 매 파스칼 초 제곱미터</translation>
    </message>
    <message>
        <source>grain per square foot hour inches mercury</source>
        <translation>그레인 매 제곱피트 시간 인치 수은주</translation>
    </message>
    <message>
        <source>ohm meter</source>
        <translation>옴미터</translation>
    </message>
    <message>
        <source>joule per gram</source>
        <translatorcomment>CLDR: 그램당 줄</translatorcomment>
        <translation>그램당 줄</translation>
    </message>
    <message>
        <source>joule per kilogram</source>
        <translatorcomment>CLDR: 킬로그램당 줄</translatorcomment>
        <translation>킬로그램당 줄</translation>
    </message>
    <message>
        <source>BTU per pound</source>
        <translation>BTU 매 파운드</translation>
    </message>
</context>
</TS>
