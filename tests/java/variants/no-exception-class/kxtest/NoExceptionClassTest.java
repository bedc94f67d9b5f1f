package kxtest;

import static org.junit.Assert.assertEquals;

import org.junit.Test;

/** Without DiskArrayException on the class path every report becomes ClassNotFoundException. */
public class NoExceptionClassTest extends BridgeTest {
    @Test
    public void reportsNameTheMissingExceptionClass() {
        for (int c : new int[] {258, 2817, 7}) {
            Throwable t = thrown(() -> CoreProbe.errorThrow(c));
            assertEquals(ClassNotFoundException.class, t.getClass());
            assertEquals("orvane/str/diskarray/DiskArrayException", t.getMessage());
        }
    }

    @Test
    public void aNativeNullArgumentSurfacesTheSameWay() {
        Throwable t = thrown(() -> new orvane.str.diskarray.DiskArrayUtilityJNI().KX_KeepSession(null, null));
        assertEquals(ClassNotFoundException.class, t.getClass());
        assertEquals("orvane/str/diskarray/DiskArrayException", t.getMessage());
    }
}
