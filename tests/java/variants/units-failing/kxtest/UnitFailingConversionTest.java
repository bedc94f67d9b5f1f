package kxtest;

import static org.junit.Assert.assertEquals;

import orvane.str.diskarray.CacheStatus;
import orvane.str.diskarray.KXUnitParam;
import org.junit.Before;
import org.junit.Test;

/** Results that cannot be built: a constructor that throws, a field of the wrong type. */
public class UnitFailingConversionTest extends BridgeTest {
    @Before
    public void resetCounters() {
        KXUnitParam.failAt = 0;
        KXUnitParam.made = 0;
        CacheStatus.failAt = 0;
        CacheStatus.made = 0;
    }

    @Test
    public void unitTableStopsAtTheFirstRecordThatCannotBeBuilt() {
        KXUnitParam.failAt = 2;
        Throwable t = thrown(() -> jni.KX_GetUnitParamTable(4));
        assertEquals("the JVM's own exception, not a DiskArrayException", IllegalStateException.class, t.getClass());
        assertEquals("records after the failing one are not converted", 2, KXUnitParam.made);
        assertEquals(1, FakePernix.calls("KX_GetUnitParamTable"));
    }

    @Test
    public void aUnitThatCannotBeBuiltIsReportedAsMarshalingFailure() {
        KXUnitParam.failAt = 1;
        assertEquals(2817, code(() -> jni.KX_GetUnitParam("u")));
    }

    @Test
    public void aCacheElementThatCannotBeBuiltFailsTheWholeCondition() {
        CacheStatus.failAt = 40;  // element 7 of cache2
        assertEquals(2817, code(() -> jni.KX_GetUnitCondition("u", null, 0)));
        assertEquals(40, CacheStatus.made);
    }

    @Test
    public void aConnectorFieldOfAnotherTypeFailsTheWholeCondition() {
        assertEquals(2817, code(() -> jni.KX_GetUnitCondition("u", null, 0)));
        assertEquals("both cache arrays were built first", 64, CacheStatus.made);
    }
}
