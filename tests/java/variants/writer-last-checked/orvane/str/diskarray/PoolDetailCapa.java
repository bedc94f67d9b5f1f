package orvane.str.diskarray;

/** Lacks poolcapa_l, the last field whose failure drops the object. */
public class PoolDetailCapa {
    public int pool_no;
    public int poolcapa_h;
    public int poolcapa_l_absent;
}
